#pragma once

// OLE, without which the shell opens, copies and shows nothing reliably: what it calls may be COM objects.
// Begun by whoever asks the shell, so that a run that asks it for nothing does not pay for it.

#include "win/Handles.h"

#include <objbase.h>
#include <shtypes.h>

// For the calling thread, until it ends; again costs next to nothing. Where it fails, the services say so.
void StartOle();

template <class Interface> void ReleaseInterface(Interface* object) { object->Release(); }

// Holds one reference of a COM object.
template <class Interface> using UniqueInterface = win::Unique<Interface*, ReleaseInterface<Interface>>;

// A shell folder or file as the shell's functions hand it out.
using UniqueItemList = win::Unique<PIDLIST_ABSOLUTE, CoTaskMemFree>;
