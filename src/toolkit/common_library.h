#pragma once

// The classes of the common controls exist only after their library has been asked for them.
void NeedCommonControls();
