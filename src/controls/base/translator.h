#pragma once
#include "controls/base/value_text.h"
#include <functional>

// A text of the description file in the reader's language; none: it stays as it is.
using TranslatorTP = std::function<ValueTextCL(const ValueTextCL& text)>;
