// SPDX-License-Identifier: MIT
#include "platform/Appearance.h"

#include "platform/DesktopSettings.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPointer>

#include <algorithm>

namespace platform {

namespace {

using namespace Qt::StringLiterals;

struct SchemeColors
{
    QRgb windowBackground;
    QRgb panel;
    QRgb edge;
    QRgb label;
    QRgb secondaryLabel;
    QRgb red;
    /// Used when the user chose none.
    QRgb accent;
    /// Background of Qt's own text fields and lists.
    QRgb base;
    /// Background of Qt's own buttons.
    QRgb button;
};

constexpr SchemeColors kLight{0xfffafafa, 0xffffffff, 0xff8c8c8c, 0xff1f1f1f, 0xff636366,
                              0xffc9251c, 0xff0b62d6, 0xffffffff, 0xffe8e8e8};
constexpr SchemeColors kDark{0xff1e1e1e, 0xff232323, 0xff888888, 0xfff2f2f2, 0xffa1a1a6,
                             0xffff6b61, 0xff2f7ff0, 0xff1e1e1e, 0xff303030};

const SchemeColors &colorsOf(const Appearance &appearance)
{
    return appearance.isDark() ? kDark : kLight;
}

bool isDarkPalette(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() <
           palette.color(QPalette::WindowText).lightnessF();
}

QString interfaceFamily()
{
    for (const QString &family : {u"Inter"_s, u"Inter Variable"_s})
        if (QFontDatabase::hasFamily(family))
            return family;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

} // namespace

Appearance::Appearance(Scheme scheme, QObject *parent) : QObject(parent), m_forcedScheme(scheme)
{
}

Appearance::Appearance(QObject *application)
    : QObject(application), m_desktop(std::make_unique<DesktopSettingsReader>())
{
    connect(m_desktop.get(), &DesktopSettingsReader::changed, this, &Appearance::changed);
    application->installEventFilter(this);
}

Appearance::~Appearance() = default;

Appearance &Appearance::shared()
{
    static QPointer<Appearance> shared;
    if (!shared)
        shared = new Appearance(qApp);
    return *shared;
}

void Appearance::setForcedScheme(std::optional<Scheme> scheme)
{
    if (scheme != m_forcedScheme) {
        m_forcedScheme = scheme;
        Q_EMIT changed();
    }
}

bool Appearance::isDark() const
{
    if (m_forcedScheme)
        return m_forcedScheme == Scheme::Dark;
    if (m_desktop && m_desktop->settings().prefersDark)
        return *m_desktop->settings().prefersDark;
    return isDarkPalette(QGuiApplication::palette());
}

QColor Appearance::labelColor() const
{
    return QColor::fromRgb(colorsOf(*this).label);
}

QColor Appearance::secondaryLabelColor() const
{
    return QColor::fromRgb(colorsOf(*this).secondaryLabel);
}

QColor Appearance::controlTextColor() const
{
    return labelColor();
}

QColor Appearance::systemRedColor() const
{
    return QColor::fromRgb(colorsOf(*this).red);
}

QColor Appearance::controlAccentColor() const
{
    if (m_forcedScheme)
        return QColor::fromRgb(colorsOf(*this).accent);
    const QColor accent = m_desktop ? m_desktop->settings().accent : QColor();
    return accent.isValid() ? accent : QGuiApplication::palette().color(QPalette::Highlight);
}

QColor Appearance::windowBackgroundColor() const
{
    return QColor::fromRgb(colorsOf(*this).windowBackground);
}

QColor Appearance::panelColor() const
{
    return QColor::fromRgb(colorsOf(*this).panel);
}

QColor Appearance::edgeColor() const
{
    return QColor::fromRgb(colorsOf(*this).edge);
}

QPalette Appearance::palette() const
{
    const SchemeColors &colors = colorsOf(*this);
    QPalette palette(QColor::fromRgb(colors.button), windowBackgroundColor());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, labelColor());
        palette.setColor(QPalette::Disabled, role, secondaryLabelColor());
    }
    palette.setColor(QPalette::PlaceholderText, secondaryLabelColor());
    palette.setColor(QPalette::Base, QColor::fromRgb(colors.base));
    palette.setColor(QPalette::AlternateBase, windowBackgroundColor());
    palette.setColor(QPalette::ToolTipBase, QColor::fromRgb(colors.button));
    palette.setColor(QPalette::Link, controlAccentColor());
    return palette;
}

bool Appearance::reducedMotion() const
{
    return m_desktop && m_desktop->settings().wantsReducedMotion();
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == parent())
        Q_EMIT changed();
    return QObject::eventFilter(watched, event);
}

QFont systemFont(double size, QFont::Weight weight)
{
    static const QString family = interfaceFamily();
    QFont font(family);
    font.setPixelSize(std::max(1, qRound(size)));
    font.setWeight(weight);
    return font;
}

} // namespace platform
