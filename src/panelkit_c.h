#pragma once

// The C interface: for programs of any language and compiler.
#include "form/panelkit_c.h"
