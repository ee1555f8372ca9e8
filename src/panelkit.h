#pragma once

// The whole library: the host brings the headers of every kind it builds.
#include "dialog/basic_dialog.h"
