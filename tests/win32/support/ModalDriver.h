#pragma once

// Drives the modal windows (dialogs, message boxes) that code under test opens on this thread,
// as a user would: each queued action receives the next such window that appears. A thread timer
// looks for them, so it runs inside the modal loop the window brings.
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

    ModalDriver() {
        current_ = this;
        timer_ = ::SetTimer(nullptr, 0, 20, &ModalDriver::Tick);
    }
    ~ModalDriver() {
        ::KillTimer(nullptr, timer_);
        current_ = nullptr;
    }
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    // Queues an action for the next modal window: a dialog or message box, or with menu set, a
    // popup menu being tracked.
    ModalDriver& Then(Action action, bool menu = false) {
        actions_.push_back({std::move(action), menu ? L"#32768" : L"#32770"});
        return *this;
    }
    // Queues: pick the entry at position in the next tracked popup menu with the keyboard.
    ModalDriver& ChooseMenuEntry(int position) {
        return Then([position](HWND menu) {
            for (int i = 0; i <= position; ++i) ::PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
            ::PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
        }, true);
    }
    // Queues: remember the window's caption and texts, then press the button with id.
    ModalDriver& Answer(int buttonId) {
        return Then([this, buttonId](HWND window) {
            seen.push_back(Caption(window) + "|" + Texts(window));
            Press(window, buttonId);
        });
    }
    bool Done() const { return actions_.empty(); }

    // "caption|texts" of each window answered by Answer, in order.
    std::vector<std::string> seen;

    static std::string Caption(HWND window) { return Text(window); }
    // The texts of the window's children, joined by blanks (the message of a message box).
    static std::string Texts(HWND window) {
        std::string all;
        for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            wchar_t className[32] = {};
            ::GetClassNameW(child, className, 32);
            if (std::wstring(className) != L"Static") continue;
            const std::string text = Text(child);
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
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, EN_CHANGE), reinterpret_cast<LPARAM>(edit));
    }
    // A window's text as Windows-1252 bytes (the program's texts).
    static std::string Text(HWND window) {
        wchar_t text[2048] = {};
        ::GetWindowTextW(window, text, 2048);
        char bytes[2048] = {};
        ::WideCharToMultiByte(1252, 0, text, -1, bytes, sizeof bytes, nullptr, nullptr);
        return bytes;
    }

private:
    struct Pending {
        Action action;
        std::wstring windowClass;
    };

    static BOOL CALLBACK FindModal(HWND window, LPARAM found) {
        wchar_t className[16] = {};
        ::GetClassNameW(window, className, 16);
        if (::IsWindowVisible(window) && className == current_->actions_.front().windowClass &&
            !current_->handled_.count(window) && (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) == 0) {
            *reinterpret_cast<HWND*>(found) = window;
            return FALSE;
        }
        return TRUE;
    }

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        ModalDriver* driver = current_;
        if (driver == nullptr || driver->actions_.empty() || driver->busy_) return;
        HWND found = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &ModalDriver::FindModal, reinterpret_cast<LPARAM>(&found));
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
