// Every measurement of the benchmark. Each prints its rows, and throws when it cannot measure. The comment at
// the top of its file says what it compares.
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
