// The program among others: its input and output, while it heeds what tells it to go.
#pragma once

#include <cstddef>

namespace program {

// Output that nobody reads any more is a failure, and no sudden end.
void OutliveReaders();
// Waits for standard input and reads some of it; 0 at its end. A signal ends the program here.
size_t Read(char* chunk, size_t size);
// The same without waiting, where something has come. False if nothing has.
bool ReadNow(char* chunk, size_t size, size_t& got);
// What standard input can be waited for by.
int Input();
// Writes to standard output, whose reader may not read on. False if it can't be written.
bool Write(const char* text, size_t size);

}  // namespace program
