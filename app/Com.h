#pragma once

// OLE for the calling thread, which some of the shell's services need. Begun at the first call and kept
// until the program ends, so that a run that asks the shell for nothing does not pay for it.
void StartOle();
