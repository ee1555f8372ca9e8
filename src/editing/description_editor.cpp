#include "editing/description_editor.h"
