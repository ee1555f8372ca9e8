#include "containers/string_arr.h"

template class PANELKIT_API Arr<VrStringCL>;
