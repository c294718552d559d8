// Asks what is to become of changes that are not saved.
#pragma once

#include "Controls.h"
#include "ModalWindow.h"

class SaveQuestion : public ModalWindow
{
public:
    enum class Answer
    {
        Save,
        DontSave,
        Cancel
    };

    Answer Ask(CWnd& owner, CFont& font);

protected:
    afx_msg void OnButton(UINT id) { End(static_cast<int>(id)); }
    DECLARE_MESSAGE_MAP()

private:
    CStatic m_text;
    CButton m_save;
    CButton m_dontSave;
    CButton m_cancel;
};
