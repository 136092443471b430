// The entry of programs that are one application object.
#include "afxwin.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show) {
    return AfxWinMain(instance, previous, commandLine, show);
}
