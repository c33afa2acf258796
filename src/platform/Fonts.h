// The system's fonts, read on a thread of their own. The first letter that a program shows waits for them, a third of
// the whole start; the folder, the database and the drawings are done meanwhile.
#pragma once

/// Begins to read them: the first thing that main() does.
void ReadFontsAhead();

/// Waits until they are read; returns at once where nobody began. Before the first letter, or it reads them once more.
void AwaitFonts();
