#pragma once
#include "toolkit/toolkit.h"

// What several kinds ask of the window that they are about to create, by the numbers of description files.

// 1: a sunken edge.
inline void slSetSunken(CREATESTRUCT& create, int sunken)
{
    create.dwExStyle |= sunken == 1 ? WS_EX_CLIENTEDGE : 0;
}

// 1: a sunken edge with border.
inline void slSetEdge(CREATESTRUCT& create, int edge)
{
    create.style |= edge == 1 ? WS_BORDER : 0;
    slSetSunken(create, edge);
}

// Of statics and edits: 3 centred, 4 right, else left.
inline void slSetAlignment(CREATESTRUCT& create, int mode)
{
    static_assert(SS_CENTER == ES_CENTER && SS_RIGHT == ES_RIGHT, "the same bits");
    create.style |= mode == 3 ? ES_CENTER : mode == 4 ? ES_RIGHT : 0;
}

// Of edits: 1: can't be edited.
inline void slSetReadOnly(CREATESTRUCT& create, int readOnly)
{
    create.style |= readOnly == 1 ? ES_READONLY : 0;
}
