// The style of the process, and its light shading by default.
#include "BkgStyle.h"

#include <utility>

namespace {

constexpr ShadeProps::Face kLightButton[ShadeProps::StateCount] = {
    {RGB(0xFE, 0xFE, 0xFF), RGB(0xE2, 0xE7, 0xEE), RGB(0xB4, 0xBC, 0xC8)},
    {RGB(0xFF, 0xFF, 0xFF), RGB(0xCF, 0xE3, 0xF8), RGB(0x7D, 0xA9, 0xD6)},
    {RGB(0xB9, 0xCF, 0xE6), RGB(0xDA, 0xE6, 0xF3), RGB(0x6F, 0x92, 0xB8)},
    {RGB(0xFA, 0xFB, 0xFC), RGB(0xED, 0xF0, 0xF4), RGB(0xC4, 0xC9, 0xD1)},
};

std::unique_ptr<BkgStyle> MakeLightStyle()
{
    auto pStyle = std::make_unique<BkgStyle>();
    pStyle->Set(BkgStyle::UIPushButton, ShadeProps(std::to_array(kLightButton)));
    return pStyle;
}

std::unique_ptr<BkgStyle>& GetHolder()
{
    static std::unique_ptr<BkgStyle> s_pStyle = MakeLightStyle();
    return s_pStyle;
}

}

BkgStyle* BkgStyle::GetInstance()
{
    return GetHolder().get();
}

void BkgStyle::SetInstance(std::unique_ptr<BkgStyle> pStyle)
{
    GetHolder() = std::move(pStyle);
}

bool BkgStyle::Get(UIComponent eComponent, ShadeProps*& pProps) const
{
    const auto it = m_mapProps.find(eComponent);
    if (it == m_mapProps.end())
        return false;
    pProps = it->second.get();
    return true;
}

void BkgStyle::Set(UIComponent eComponent, const ShadeProps& props)
{
    m_mapProps[eComponent] = std::make_unique<ShadeProps>(props);
}
