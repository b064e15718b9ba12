// The root folder of the device that this process has to itself.
#pragma once

#include <string>

namespace tavix {

// The folder, without a closing backslash: Tavix\DeviceRoot\process-<id> in the user's local
// application data, made at the first call. It is removed, with all that is in it, when the process
// ends; what a process leaves behind that was ended by force is removed by the next one that asks
// for its own. A folder that cannot be made is named all the same; empty when the user has no local
// application data.
const std::wstring& ProcessRoot();

}  // namespace tavix
