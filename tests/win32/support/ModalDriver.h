#pragma once

// Drives the modal windows (dialogs, message boxes, popup menus) that code under test opens on
// this thread, as a user would: each queued action receives the next such window that appears.
// A thread timer looks for them, so it runs inside the modal loop the window brings.
#include "win32/Text.h"

#include <windows.h>

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace rhomba::test {

class ModalDriver {
public:
    using Action = std::function<void(HWND)>;

    ModalDriver() : timer_(::SetTimer(nullptr, 0, 20, &ModalDriver::Tick)) { current_ = this; }
    ~ModalDriver() {
        ::KillTimer(nullptr, timer_);
        current_ = nullptr;
    }
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    // Queues an action for the next dialog or message box, or with menu set, the next popup menu.
    void Then(Action action, bool menu = false) {
        actions_.push_back({std::move(action), menu ? L"#32768" : L"#32770"});
    }
    // Queues: pick the entry at position (separators not counted) of the next popup menu.
    void ChooseMenuEntry(int position) {
        Then([position](HWND menu) {
            for (int i = 0; i <= position; ++i) ::PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
            ::PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
        }, true);
    }
    // Queues: note "caption|texts" of the next window in seen, then press the button with id.
    void Answer(int buttonId) {
        Then([this, buttonId](HWND window) {
            seen.push_back(Text(window) + "|" + Texts(window));
            Press(window, buttonId);
        });
    }
    bool Done() const { return actions_.empty(); }

    std::vector<std::string> seen;

    // The texts of the window's static children, joined by blanks (the message of a message box).
    static std::string Texts(HWND window) {
        std::string all;
        for (HWND child = ::GetWindow(window, GW_CHILD); child;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            wchar_t kind[32] = {};
            ::GetClassNameW(child, kind, 32);
            const std::string text = std::wstring(kind) == L"Static" ? Text(child) : "";
            if (!text.empty()) all += (all.empty() ? "" : " ") + text;
        }
        return all;
    }
    static void Press(HWND window, int buttonId) {
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(buttonId, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(window, buttonId)));
    }
    // Types text into an edit control as the keyboard would: the text, then the change notice.
    static void Type(HWND window, int id, const std::wstring& text) {
        HWND edit = ::GetDlgItem(window, id);
        ::SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, EN_CHANGE),
                       reinterpret_cast<LPARAM>(edit));
    }
    // A window's text as the program's Windows-1252 bytes.
    static std::string Text(HWND window) {
        wchar_t text[2048] = {};
        ::GetWindowTextW(window, text, 2048);
        return Narrow(text);
    }

private:
    struct Pending {
        Action action;
        const wchar_t* windowClass;
    };

    static BOOL CALLBACK FindModal(HWND window, LPARAM found) {
        wchar_t kind[16] = {};
        ::GetClassNameW(window, kind, 16);
        if (!::IsWindowVisible(window) ||
            std::wstring(kind) != current_->actions_.front().windowClass ||
            current_->handled_.count(window) ||
            (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0)
            return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        ModalDriver* driver = current_;
        if (driver == nullptr || driver->actions_.empty() || driver->busy_) return;
        HWND found = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &ModalDriver::FindModal,
                            reinterpret_cast<LPARAM>(&found));
        if (found == nullptr) return;
        driver->handled_.insert(found);
        Action action = std::move(driver->actions_.front().action);
        driver->actions_.pop_front();
        driver->busy_ = true; // an action may open another modal window of its own
        action(found);
        driver->busy_ = false;
    }

    static inline ModalDriver* current_ = nullptr;
    UINT_PTR timer_ = 0;
    std::deque<Pending> actions_;
    std::set<HWND> handled_;
    bool busy_ = false;
};

} // namespace rhomba::test
