// What the heap that catches misused memory knows of itself.
#pragma once

extern "C" {

// How many blocks are in use, in all modules that take their memory from it.
__declspec(dllimport) long GuardHeapBlocks();

}  // extern "C"
