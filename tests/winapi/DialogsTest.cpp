// Dialogs that wait for the user: what they give, and their owner while they are open.
#include "Hands.h"
#include "MessageRecorder.h"

#include <commdlg.h>
#include <gtest/gtest.h>

namespace {

// Each is answered by a key, pressed again until the dialog is gone.
class Dialogs : public testing::Test
{
protected:
    void SetUp() override { s_top = top = recorder.createTop("t"); }

    void answer(int key)
    {
        constexpr UINT kPause = 300; // milliseconds
        s_ownerWasEnabled = false;
        s_key = key;
        SetTimer(top, 1, kPause, [](HWND, UINT, UINT_PTR, DWORD) {
            s_ownerWasEnabled |= IsWindowEnabled(s_top) != 0;
            pressKey(s_key);
            releaseKey(s_key);
        });
    }

    void expectOwnerBack()
    {
        KillTimer(top, 1);
        EXPECT_FALSE(s_ownerWasEnabled);
        EXPECT_TRUE(IsWindowEnabled(top));
        EXPECT_EQ(GetActiveWindow(), top);
    }

    MessageRecorder recorder;
    HWND top = nullptr;

private:
    static inline HWND s_top;
    static inline int s_key;
    static inline bool s_ownerWasEnabled;
};

TEST_F(Dialogs, AMessageBoxIsAnsweredByEnterOrEscape)
{
    const std::vector<int> keys = {
        VK_RETURN,
#ifndef _WIN32 // Wine takes Escape for a cancellation, other than Windows
        VK_ESCAPE,
#endif
    };
    for (const int key : keys) {
        answer(key);
        EXPECT_EQ(MessageBoxA(top, "a < b & c", "Title", MB_OK | MB_ICONEXCLAMATION), IDOK) << key;
        expectOwnerBack();
    }
}

TEST_F(Dialogs, FilesAreChosenOrNot)
{
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        char path[MAX_PATH] = "no-such-file";
        OPENFILENAMEA dialog{};
        dialog.lStructSize = static_cast<DWORD>(sizeof dialog);
        dialog.hwndOwner = top;
        dialog.lpstrFilter = "Texts (*.txt)\0*.txt\0All files\0*.*\0";
        dialog.nFilterIndex = 1;
        dialog.lpstrFile = path;
        dialog.nMaxFile = MAX_PATH;
        dialog.lpstrDefExt = "txt";
        dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY;
        answer(key);
        const bool chosen = GetSaveFileNameA(&dialog);
        EXPECT_EQ(chosen, key == VK_RETURN);
        EXPECT_EQ(CommDlgExtendedError(), 0u);
        expectOwnerBack();
        if (!chosen)
            continue;
        EXPECT_STREQ(path + dialog.nFileOffset, "no-such-file.txt");
        EXPECT_STREQ(path + dialog.nFileExtension, "txt");
        EXPECT_GT(dialog.nFileOffset, 1);
    }
}

}
