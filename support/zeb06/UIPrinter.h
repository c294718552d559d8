// The printer framework, which runs a print job. A derived class draws the pages.
//
// A page has a heading, the content rectangle and a footer. The unit of drawing is 1/96 inch, whatever the
// resolution of the printer and the density of the screen. Fonts are made in points.
//
// The paper that the user chooses in the dialog, and how it lies, are kept for the further jobs of the
// process. At first it lies across.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

#include "PrintInfo.h"

#include <memory>

class CPrintDialog;
struct CPrintInfo;

class ZEB17_EXPORT UIPrinter
{
public:
    UIPrinter();
    UIPrinter(const UIPrinter&) = delete;
    UIPrinter& operator=(const UIPrinter&) = delete;

    // Runs the whole job, and returns when it has ended, has failed or was cancelled. pInfo then tells what
    // went wrong. Does nothing if pInfo is null. What an overridden operation throws ends the job and reaches
    // the caller.
    void Print(PrintInfo* pInfo);

    // While such an object lives, all jobs print to its file, on the default printer and without a dialog.
    // For hosts that print without a user. With an empty path jobs ask as usual.
    class ZEB17_EXPORT ToFile
    {
    public:
        // From here on, and until the object ends, jobs go to that file.
        explicit ToFile(const CString& strPath);
        ~ToFile();
        ToFile(const ToFile&) = delete;
        ToFile& operator=(const ToFile&) = delete;

    private:
        CString m_strBefore; // the path of an object that lives longer
    };

protected:
    // The operations in the order in which they stand in the table of virtual operations; Print calls
    // InitPrintProcess, StartPrint, PrintPages, EndPrint and EndPrintProcess.

    // Gets the context of the printer that the user chooses in the dialog, or that of the default printer.
    virtual void InitPrintProcess();

    // Make the fonts of the three parts of a page.
    virtual void CreateHeaderFont(CFont& font) const;
    virtual void CreateContentFont(CFont& font) const;
    virtual void CreateFooterFont(CFont& font) const;

    // Makes the fonts, divides the page and starts the job.
    virtual void StartPrint();

    // Works out units, margins and the content rectangle of a page.
    virtual void DoPrePrintCalculations();

    // Gives a context of the printed window, for derived classes that draw by the measures of the screen, or
    // null; takes it back.
    virtual CDC* GetCtrlDC() const;
    virtual void ReleaseScreenDC(CDC* pDC) const;

    // The number of pages side by side and one below the other; 1 unless overridden.
    virtual unsigned int DoCalculatePagesAcross();
    virtual unsigned int DoCalculatePagesDown();

    // Prints all pages, and one of them: heading, content and footer.
    virtual void PrintPages();
    virtual void PrintPage();

    // The heading: the title of the job, centred.
    virtual void PrintPageHeader();

    // Draws the content into the content rectangle of GetPrintInfo(), with `crText` for its text. The
    // content font is selected.
    virtual void PrintPageContent(COLORREF crText);

    // Gives the texts of the footer: left, centre, right.
    virtual void GetPageTexts(CString& strLeft, CString& strCenter, CString& strRight);

    // The footer: the texts that GetPageTexts gives.
    virtual void PrintPageFooter();

    // Ends the job, or aborts it if something failed.
    virtual void EndPrint();

    // Deletes the printer's context.
    virtual void EndPrintProcess();

public:
    virtual ~UIPrinter();

protected:
    // The printer's context during the job, or null.
    CDC* GetPrintDC() const;

    // The job's page, or null. Its m_rectDraw is the content rectangle of the page at hand.
    CPrintInfo* GetPrintInfo() const;

    // The column and the row of the page at hand, among those that DoCalculatePagesAcross and
    // DoCalculatePagesDown give; both from 0.
    CPoint GetPagePlace() const;

    // Makes a font of the face of the page, whose letters have this height in units of drawing.
    static void CreateFontOfHeight(CFont& font, int nHeight, int nWeight = FW_NORMAL);

    // Takes over a printer's context, which is deleted at the end of the job. For derived classes that choose
    // the printer without a dialog.
    void SetPrintDC(HDC hDC);

    // Keeps the text of what went wrong, unless there is one already, and makes the rest of the job be left
    // out.
    void Fail(const CString& strMsg);
    void FailWithLastError(const CString& strMsg); // adds the text of the system's last error

private:
    void RunJob();
    bool AskForPrinter(CPrintDialog& dialog);

    struct Job;
    std::unique_ptr<Job> m_pJob;
};
