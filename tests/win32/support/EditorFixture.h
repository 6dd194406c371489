#pragma once

// Starts the whole editor in the test process, as WinMain does without the message loop, and
// takes it down again after each test.
#include "ui/Editor.h"
#include "win32/shell/Shell.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace rhomba::test {

class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(Start("")); }
    void TearDown() override { Stop(); }

    bool Start(const std::string& commandLine) {
        return StartEditor(::GetModuleHandleW(nullptr), commandLine, SW_SHOW);
    }
    void Stop() {
        if (::IsWindow(TheShell().main)) ::DestroyWindow(TheShell().main);
        Pump();
        MSG message; // the quit message the main window posts on its way out
        while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {}
    }
    // Delivers what is waiting, as the message loop would (accelerators first).
    static void Pump() {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                ::PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            if (::TranslateAcceleratorW(message.hwnd, TheShell().accelerators, &message)) continue;
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    // A menu command, as choosing the entry sends it.
    static void Command(int id) {
        ::SendMessageW(TheShell().main, WM_COMMAND, MAKEWPARAM(id, 0), 0);
    }

    static Editor& TheEditor() { return *TheShell().editor; }
    static Document& Doc() { return TheShell().editor->document; }
};

} // namespace rhomba::test
