/* A hidden window and a message loop: while it runs, Wine keeps its service processes, and the programs that
   the tests start need not start them. Plain C, so that it needs none of the libraries under test. */
#include <windows.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR arguments, int show)
{
    MSG message;
    (void)previous;
    (void)arguments;
    (void)show;
    CreateWindowExA(0, "STATIC", "keepalive", 0, 0, 0, 0, 0, 0, 0, instance, 0);
    while (GetMessageA(&message, 0, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}
