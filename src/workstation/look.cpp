#include "workstation/look.h"

#include "month/palette.h"
#include "workstation/icons.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace velmora
{

namespace
{

struct Teinte {
    QPalette::ColorRole role;
    QRgb couleur;
};

/// The grid's colours are the palette's where both mean the same.
constexpr Teinte teintes[] = {
    {QPalette::Window, 0xfff4f6f8},
    {QPalette::WindowText, palette::encre},
    {QPalette::Base, palette::fond},
    {QPalette::AlternateBase, 0xfff7f9fb},
    {QPalette::Text, palette::encre},
    {QPalette::PlaceholderText, 0xff7a8490},
    {QPalette::Button, 0xfff0f2f5},
    {QPalette::ButtonText, palette::encre},
    {QPalette::BrightText, 0xffffffff},
    {QPalette::Light, 0xffffffff},
    {QPalette::Midlight, 0xffe6eaee},
    {QPalette::Mid, 0xffc3cad2},
    {QPalette::Dark, 0xff9aa4af},
    {QPalette::Shadow, 0xff5c6670},
    {QPalette::Highlight, palette::fondSelection},
    {QPalette::HighlightedText, palette::encreSelection},
    {QPalette::Link, palette::fondSelection},
    {QPalette::LinkVisited, 0xff5b4a8a},
    {QPalette::ToolTipBase, 0xff2b3440},
    {QPalette::ToolTipText, 0xffffffff},
};

constexpr QRgb texteEteint = 0xff9aa3ad;

QPalette paletteClaire()
{
    QPalette claire;
    for (const Teinte &teinte : teintes)
        claire.setColor(teinte.role, QColor(teinte.couleur));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        claire.setColor(QPalette::Disabled, role, QColor(texteEteint));
    claire.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xffd5dae0));
    return claire;
}

} // namespace

void appliqueApparence(QApplication &application)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteClaire());
    application.setWindowIcon(iconeVelmora());
}

} // namespace velmora
