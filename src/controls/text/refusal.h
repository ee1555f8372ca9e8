#pragma once
#include "baselib/message_texts.h"
#include "toolkit/toolkit.h"
#include <string>

// How a field tells the user of a value that it refuses. To begin with as ever.
struct RefusalCL
{
    bool overDialog { false }; // The message stands over the field's top-level window and disables it.
    bool selects { false };    // The text is selected then, so that typing replaces it.
};

// What of a message depends on the kind of field.
struct RefusalBoxCL
{
    MessageTextId caption; // The text of the caption bar.
    UINT type;             // MB_...
    bool hasOwnOwner;      // The field's top-level window owns the message anyway.
};

// Tells the user of a field's value and gives the field the focus back (slTellAboutField). False when the
// field was destroyed meanwhile: the caller must not touch it any more.
bool slTellRefusal(CEdit* field, const RefusalCL& how, const RefusalBoxCL& box, const std::u16string& text);
