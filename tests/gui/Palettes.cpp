#include "Palettes.h"

#include "platform/controls/Theme.h"

namespace {

struct PaletteColours {
    QRgb Window, Base, AlternateBase, Button, Text, FaintText, Border, Highlight, Link, ToolTip;
};

QPalette MakePalette(const PaletteColours &colours)
{
    QPalette palette(QColor(colours.Button), QColor(colours.Window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(colours.Text));
        palette.setColor(QPalette::Disabled, role, QColor(colours.FaintText));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(colours.FaintText));
    palette.setColor(QPalette::Base, QColor(colours.Base));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours.Window));
    palette.setColor(QPalette::AlternateBase, QColor(colours.AlternateBase));
    palette.setColor(QPalette::Mid, QColor(colours.Border));
    palette.setColor(QPalette::Highlight, QColor(colours.Highlight));
    palette.setColor(QPalette::HighlightedText, TextOn(QColor(colours.Highlight)));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.Border));
    palette.setColor(QPalette::Link, QColor(colours.Link));
    palette.setColor(QPalette::LinkVisited, QColor(colours.Link));
    palette.setColor(QPalette::ToolTipBase, QColor(colours.ToolTip));
    return palette;
}

} // namespace

QPalette LightPalette()
{
    return MakePalette({.Window = 0xfff4f5f4,
                        .Base = 0xffffffff,
                        .AlternateBase = 0xfff0f3f1,
                        .Button = 0xffeceeed,
                        .Text = 0xff1d2421,
                        .FaintText = 0xff8c9691,
                        .Border = 0xffb9c1bd,
                        .Highlight = 0xff2a6fb0,
                        .Link = 0xff1f5f9e,
                        .ToolTip = 0xffffffff});
}

QPalette DarkPalette()
{
    return MakePalette({.Window = 0xff262a29,
                        .Base = 0xff1c201f,
                        .AlternateBase = 0xff222726,
                        .Button = 0xff343938,
                        .Text = 0xffe9eeeb,
                        .FaintText = 0xff7d8783,
                        .Border = 0xff4a5250,
                        .Highlight = 0xff2f74b5,
                        .Link = 0xff8ab8e6,
                        .ToolTip = 0xff343938});
}
