#pragma once

#include "platform/controls/stand_ins.h"

#include <QVariant>

/** The controls of the crop sheet and of the background sheet, on the outlets of a service. */
struct SheetStandIns
{
    platform::SegmentedControl position;
    platform::TextField xOffset;
    platform::TextField yOffset;
    platform::TextField width;
    platform::TextField height;
    platform::TextField percentage;
    platform::TextField pixels;
    platform::TabView tabs;
    platform::CheckBox check;
    platform::ColorWell well;
    platform::TextField borderWidth;
    platform::TextField addBorder;
    platform::TextField addBorderPx;
    platform::ColorWell borderColor;
    platform::PopUpButton format;

    void connectTo(QObject &service)
    {
        const auto connectOutlet = [&service](const char *outlet, QObject *control) {
            service.setProperty(outlet, QVariant::fromValue(control));
        };
        connectOutlet("scImageCropPos", &position);
        connectOutlet("tfCropXOffset", &xOffset);
        connectOutlet("tfCropYOffset", &yOffset);
        connectOutlet("tfCropXsize", &width);
        connectOutlet("tfCropYsize", &height);
        connectOutlet("tfCropPercentage", &percentage);
        connectOutlet("tfCropPixels", &pixels);
        connectOutlet("tvCropType", &tabs);
        connectOutlet("cbImageBgColorCheck", &check);
        connectOutlet("cwImageBackgroundColor", &well);
        connectOutlet("tfBorderWidth", &borderWidth);
        connectOutlet("tfAddBorder", &addBorder);
        connectOutlet("tfAddBorderPx", &addBorderPx);
        connectOutlet("tfBorderColor", &borderColor);
        connectOutlet("pubFutureFileFormat", &format);
    }

    static void write(QObject &field, const char *text) { field.setProperty("stringValue", QString::fromUtf8(text)); }
    void choose(const char *label, int place)
    {
        tabs.setProperty("selectedLabel", QString::fromUtf8(label));
        position.setProperty("selectedSegment", place);
    }
    void fillBackground(const char *color, const char *border)
    {
        check.setProperty("state", 1);
        well.setProperty("color", QString::fromUtf8(color));
        write(borderWidth, border);
    }
};
