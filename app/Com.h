#pragma once

// OLE for the calling thread, which some of the shell's services need. Begun at the first call and kept
// until the program ends, so that a run that asks the shell for nothing does not pay for it.

#include "win/Handles.h"

#include <objbase.h>
#include <shtypes.h>

void StartOle();

template <class Interface> void ReleaseInterface(Interface* object) { object->Release(); }

// Holds one reference of a COM object.
template <class Interface> using UniqueInterface = win::Unique<Interface*, ReleaseInterface<Interface>>;

// A shell folder or file as the shell's functions hand it out.
using UniqueItemList = win::Unique<PIDLIST_ABSOLUTE, CoTaskMemFree>;
