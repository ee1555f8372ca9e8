#include "editing/value_forms.h"
