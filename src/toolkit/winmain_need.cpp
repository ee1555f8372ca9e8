// Every program that includes the toolkit refers to this, and this to WinMain: the linker then takes ours
// along, unless the program itself has one.
#include <windows.h>

extern "C" {

extern const int AfxNeedsWinMain;
extern void* const afxWinMain;
const int AfxNeedsWinMain = 1;
void* const afxWinMain = reinterpret_cast<void*>(&WinMain);
}
