#pragma once

// The C interface: for programs of any language and compiler.
#include "form/canvas_c.h"
#include "form/panelkit_c.h"
