#pragma once
#include "toolkit/object.h"

// Which object holds a GDI handle or device context, so that FromHandle gives that very object. Arrays that
// move their elements by bytes tell it; whoever else moves objects that hold a handle must not.
class GdiOwnersCL
{
public:
    static void AddM(HGDIOBJ handle, CObject* owner); // by the calling thread, instead of any owner before
    static void RemoveM(const CObject* owner);
    static CObject* FindM(HGDIOBJ handle); // null: none that the calling thread has added
};
