// The look that a process gives to its controls: one set of shading properties a component.
#pragma once

#include "ShadeProps.h"
#include <map>
#include <memory>

class ZEB17_EXPORT BkgStyle
{
public:
    // The components that have a look, by the numbers of the family.
    enum UIComponent
    {
        UIPushButton = 13
    };

    // The style of the process: a light vertical shading until a host sets its own. May be null.
    static BkgStyle* GetInstance();

    // Replaces the style of the process and deletes the old one; null leaves the controls their own look.
    // Controls take it up at their next request.
    static void SetInstance(std::unique_ptr<BkgStyle> pStyle);

    // Gives the properties of a component. The style owns them and lends them until it is changed or
    // replaced. False, with `pProps` untouched, if the style says nothing about the component.
    bool Get(UIComponent eComponent, ShadeProps*& pProps) const;

    // Copies the properties for a component.
    void Set(UIComponent eComponent, const ShadeProps& props);

private:
    std::map<UIComponent, std::unique_ptr<ShadeProps>> m_mapProps;
};
