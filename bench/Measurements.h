// All measurements of the benchmark. Each prints its rows, or throws an exception if it cannot measure. The
// comment at the top of its .cpp file says what it compares.
#pragma once

namespace obrin::bench {

void MeasureTyping();
void MeasureTree();
void MeasureStart();
void MeasureCaption();
void MeasureOpens();
void MeasureWait();
void MeasureDialog();
void MeasureSave();
void MeasureLoad();
void MeasureMemory();
void MeasureSize();

} // namespace obrin::bench
