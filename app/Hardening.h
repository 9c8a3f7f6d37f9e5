#pragma once

// What the program keeps out, from its first line on.

// Libraries come from the system's folder, never from the program's or the current one, where anybody who
// can write there could plant them. Systems that lack the call (before 2011) are left as they are.
void RefusePlantedLibraries();

// A drive without a medium is an error like others and no box of the system's. Holds for the calling thread
// alone, so that the programs that it starts go on as they are used to.
void RefuseSystemBoxes();
