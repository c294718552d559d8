// The look of the controls of a process: a shading for each kind of control.
#pragma once

#include "ShadeProps.h"

#include <map>
#include <memory>

class ZEB17_EXPORT BkgStyle
{
public:
    // The kinds of controls. The numbers are those that all libraries of the family use.
    enum UIComponent
    {
        UIPushButton = 13
    };

    // The style of the process. It is a light vertical shading until the host sets its own, and null if the
    // host has set null.
    static BkgStyle* GetInstance();

    // Replaces the style of the process and deletes the old one; with null the controls keep the look that
    // they have. A control shows the new style from when it next asks for it.
    static void SetInstance(std::unique_ptr<BkgStyle> pStyle);

    // Gives the shading of a component in pProps. The style owns it; it is good until the style is changed or
    // replaced. False, with pProps untouched, if the style has none for the component.
    bool Get(UIComponent eComponent, ShadeProps*& pProps) const;

    // Sets the shading of a component to a copy of props.
    void Set(UIComponent eComponent, const ShadeProps& props);

private:
    std::map<UIComponent, std::unique_ptr<ShadeProps>> m_mapProps;
};
