// The measurements, each for some goals of docs/performance.md. Each wants a process of its own.
#pragma once

namespace tavix {

void MeasureWholeViews();            // 1, 2
void MeasureLabels();                // 1b
void MeasurePens();                  // 1c
void MeasureZoomedViews();           // 3, 4
void MeasurePoints();                // 5, 6
void MeasurePicks();                 // 7
void MeasureMemory();                // 8
void MeasureLines();                 // 9
void MeasureFigures();               // 10
void MeasureAtOnce();                // 11
void MeasureChanges();               // 12
void MeasurePaint();                 // 13
void MeasureOneBit();                // 14
void MeasureList(const char* file);  // 15: the floor of a host that reads a coordinate list
void MeasureFirstRedraw();           // 16
void MeasureSideView();              // 17

}  // namespace tavix
