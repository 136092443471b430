// Tells what the windows of the sample host show, for tests that drive it from outside. For each line read it writes one
// line of JSON: for "clipboard" the clipboard's text as programs of this session get it, for "post", "send" and "ask",
// each with a window (frame, table or editor), a message, wParam and lParam, what came of sending that as another
// program does, and for anything else every visible window of the host's process, and which has the keyboard focus.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr UINT kPatienceMs = 2000;
constexpr int kTextChars = 1024;

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    return ::SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatienceMs, &answer)
               ? static_cast<LRESULT>(answer)
               : 0;
}

std::string Quoted(const wchar_t *text) {
    std::string json = "\"";
    for (; *text != L'\0'; ++text) {
        char escaped[8];
        if (*text < 0x20 || *text > 0x7E || *text == L'"' || *text == L'\\') {
            std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(*text));
            json += escaped;
        } else {
            json += static_cast<char>(*text);
        }
    }
    return json + '"';
}

std::string List(const std::vector<std::string> &values) {
    std::string json = "[";
    for (const std::string &value : values)
        json += (json.size() > 1 ? "," : "") + value;
    return json + "]";
}

std::string TextOf(HWND window) {
    wchar_t text[kTextChars] = L"";
    Ask(window, WM_GETTEXT, kTextChars, reinterpret_cast<LPARAM>(text));
    return Quoted(text);
}

std::string ItemsOf(HWND list) {
    std::vector<std::string> items;
    const LRESULT count = Ask(list, LB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
        wchar_t text[kTextChars] = L"";
        if (Ask(list, LB_GETTEXTLEN, i, 0) < kTextChars)
            Ask(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
        items.push_back(Quoted(text));
    }
    return List(items);
}

// The parts' texts are fetched through the other process' memory: the control writes them where it is told.
std::string PartsOf(HWND bar) {
    std::vector<std::string> parts;
    DWORD id = 0;
    ::GetWindowThreadProcessId(bar, &id);
    const HANDLE process = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    constexpr SIZE_T kBytes = kTextChars * sizeof(wchar_t);
    void *there = process != nullptr ? ::VirtualAllocEx(process, nullptr, kBytes, MEM_COMMIT, PAGE_READWRITE) : nullptr;
    const LRESULT count = there != nullptr ? Ask(bar, SB_GETPARTS, 0, 0) : 0;
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
        wchar_t text[kTextChars] = L"";
        Ask(bar, SB_GETTEXTW, i, reinterpret_cast<LPARAM>(there));
        ::ReadProcessMemory(process, there, text, sizeof text - sizeof *text, nullptr);
        parts.push_back(Quoted(text));
    }
    if (there != nullptr)
        ::VirtualFreeEx(process, there, 0, MEM_RELEASE);
    if (process != nullptr)
        ::CloseHandle(process);
    return List(parts);
}

std::string Describe(HWND window, HWND focus) {
    wchar_t name[128] = L"";
    ::GetClassNameW(window, name, 128);
    RECT rect{};
    ::GetWindowRect(window, &rect);
    char numbers[160];
    std::snprintf(numbers, sizeof numbers, "\"id\":%ld,\"rect\":[%ld,%ld,%ld,%ld],\"enabled\":%s,\"focus\":%s",
                  static_cast<long>(::GetDlgCtrlID(window)), rect.left, rect.top, rect.right, rect.bottom,
                  ::IsWindowEnabled(window) ? "true" : "false", window == focus ? "true" : "false");
    std::string json = "{\"class\":" + Quoted(name) + ",\"text\":" + TextOf(window) + "," + numbers;
    if (::lstrcmpiW(name, L"ListBox") == 0) {
        RECT item{}; // of the first entry, in the list's own coordinates
        Ask(window, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
        json += ",\"items\":" + ItemsOf(window) + ",\"selected\":" + std::to_string(Ask(window, LB_GETCURSEL, 0, 0)) +
                ",\"top\":" + std::to_string(Ask(window, LB_GETTOPINDEX, 0, 0)) +
                ",\"itemHeight\":" + std::to_string(item.bottom - item.top);
    }
    if (::lstrcmpiW(name, STATUSCLASSNAMEW) == 0)
        json += ",\"parts\":" + PartsOf(window);
    return json + "}";
}

struct Look {
    DWORD process;
    HWND focus;
    std::vector<std::string> windows;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM param) {
    Look *look = reinterpret_cast<Look *>(param);
    if (::IsWindowVisible(window))
        look->windows.push_back(Describe(window, look->focus));
    return TRUE;
}

BOOL CALLBACK TakeTopWindow(HWND window, LPARAM param) {
    const Look *look = reinterpret_cast<const Look *>(param);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == look->process && ::IsWindowVisible(window)) {
        TakeWindow(window, param);
        ::EnumChildWindows(window, TakeWindow, param);
    }
    return TRUE;
}

BOOL CALLBACK FindHost(HWND window, LPARAM param) {
    wchar_t title[64] = L"";
    ::GetWindowTextW(window, title, 64);
    if (::IsWindowVisible(window) && std::wstring(title).rfind(L"Orvane Tables", 0) == 0)
        ::GetWindowThreadProcessId(window, reinterpret_cast<DWORD *>(param));
    return TRUE;
}

std::string LookAtHost() {
    Look look{};
    ::EnumWindows(FindHost, reinterpret_cast<LPARAM>(&look.process));
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (::GetGUIThreadInfo(0, &info))
        look.focus = info.hwndFocus;
    if (look.process != 0)
        ::EnumWindows(TakeTopWindow, reinterpret_cast<LPARAM>(&look));
    return List(look.windows);
}

std::string ClipboardText() {
    std::string json = "\"\"";
    if (!::OpenClipboard(nullptr))
        return json;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto *text = static_cast<const wchar_t *>(::GlobalLock(data))) {
            json = Quoted(text);
            ::GlobalUnlock(data);
        }
    }
    ::CloseClipboard();
    return json;
}

// The frame, the first table's window, or that one's editor; null where there is none.
HWND Named(const std::string &name) {
    DWORD process = 0;
    ::EnumWindows(FindHost, reinterpret_cast<LPARAM>(&process));
    HWND frame = nullptr;
    while ((frame = ::FindWindowExW(nullptr, frame, nullptr, nullptr)) != nullptr) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(frame, &owner);
        if (owner == process && process != 0 && ::FindWindowExW(frame, nullptr, L"MDIClient", nullptr) != nullptr)
            break;
    }
    if (name == "frame")
        return frame;
    const HWND table = ::GetWindow(::FindWindowExW(frame, nullptr, L"MDIClient", nullptr), GW_CHILD);
    constexpr int kEditorId = 0xE900;
    return name == "table" ? table : ::GetDlgItem(table, kEditorId);
}

// "post" puts the message in the queue, "send" has it handled without waiting, "ask" waits for the answer.
std::string Tell(const std::string &line) {
    char how[8] = "", name[16] = "";
    unsigned message = 0;
    unsigned long long wParam = 0, lParam = 0;
    std::sscanf(line.c_str(), "%7s %15s %u %llu %llu", how, name, &message, &wParam, &lParam);
    const HWND window = Named(name);
    if (std::string(how) == "post")
        return ::PostMessageW(window, message, wParam, static_cast<LPARAM>(lParam)) ? "true" : "false";
    if (std::string(how) == "send")
        return ::SendNotifyMessageW(window, message, wParam, static_cast<LPARAM>(lParam)) ? "true" : "false";
    return std::to_string(::SendMessageW(window, message, wParam, static_cast<LPARAM>(lParam)));
}

std::string Answer(const std::string &line) {
    for (const char *told : {"post ", "send ", "ask "}) {
        if (line.rfind(told, 0) == 0)
            return Tell(line);
    }
    return line.rfind("clipboard", 0) == 0 ? ClipboardText() : LookAtHost();
}

} // namespace

int main() {
    char line[96];
    while (std::fgets(line, sizeof line, stdin) != nullptr) {
        std::puts(Answer(line).c_str());
        std::fflush(stdout);
    }
    return 0;
}
