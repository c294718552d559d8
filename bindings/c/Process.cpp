// The functions of the interface that hold for the whole process: version, look, data directory and log.
#include "Result.h"
#include "Texts.h"

#include <AppLogger.h>
#include <BkgStyle.h>
#include <CalendarSettings.h>
#include <ZebrikUtils.h>

#include <memory>

using namespace Zeb17;

namespace {

// Hands the lines of the log to the host.
class HostLog : public AppLogger
{
public:
    void AddLine(const CString& strLine) override
    {
        if (m_pProc)
            m_pProc(m_pContext, ToUtf8(strLine).c_str());
    }

    zeb17_log_proc m_pProc = nullptr;
    void* m_pContext = nullptr;
};

ShadeProps::Face ToFace(const zeb17_face& face)
{
    return {face.top, face.bottom, face.border};
}

}

int zeb17_version(void)
{
    return ZEB17_VERSION;
}

int zeb17_set_shading(const zeb17_shading* shading)
{
    return Run([=] {
        if (!shading)
            return ZEB17_BAD_ARGUMENT;
        if (shading->size != sizeof *shading)
            return ZEB17_BAD_SIZE;
        auto pStyle = std::make_unique<BkgStyle>();
        pStyle->Set(BkgStyle::UIPushButton,
                    ShadeProps({ToFace(shading->normal), ToFace(shading->hot), ToFace(shading->pressed),
                                ToFace(shading->disabled)}));
        BkgStyle::SetInstance(std::move(pStyle));
        return ZEB17_OK;
    });
}

int zeb17_enable_todo(void)
{
    CalendarSettings::EnableToDoList();
    return ZEB17_OK;
}

int zeb17_set_data_directory(const char* directory)
{
    return Run([=] {
        CString text;
        if (!FromUtf8(directory, text))
            return ZEB17_BAD_TEXT;
        ZebrikUtils::SetDataDirectory(text);
        return ZEB17_OK;
    });
}

int zeb17_set_log(zeb17_log_proc proc, void* context)
{
    static HostLog& s_log = *new HostLog; // stays, since the library may log to the end of the process
    s_log.m_pProc = proc;
    s_log.m_pContext = context;
    AppLogger::m_pInstance = &s_log;
    return ZEB17_OK;
}
