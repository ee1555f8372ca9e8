// In the import library, for programs that have an application object and no main function of their own.
#include "toolkit/app.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show)
{
    return AfxWinMain(instance, previous, commandLine, show);
}
