// SPDX-License-Identifier: MIT
#include "location/PlaceCard.h"

#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "location/Coordinates.h"
#include "platform/Appearance.h"
#include "platform/ShortTime.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 4;
constexpr int kSpacingAboveSun = 10;
constexpr double kRadius = 10.0;
constexpr double kNameSize = 17.0;
/// Of the text's colour, with which the card is tinted.
constexpr double kCardOpacity = 0.05;

QString sunText(const std::optional<Place> &place)
{
    if (!place)
        return PlaceCard::tr("Choose a place to see its sunrise and sunset.");
    if (!place->sunrise || !place->sunset)
        return PlaceCard::tr(
            "The sun does not rise or set there today, so it cannot begin or end a night.");
    const QString text =
        place->hasOtherTime ? PlaceCard::tr("Today: sunrise %1, sunset %2 by this computer's clock")
                            : PlaceCard::tr("Today: sunrise %1, sunset %2");
    return text.arg(platform::shortTimeText(*place->sunrise),
                    platform::shortTimeText(*place->sunset));
}

QString nameText(const std::optional<Place> &place)
{
    if (!place)
        return PlaceCard::tr("No place chosen");
    return place->name.isNull() ? coordinatesText(place->location) : place->name;
}

} // namespace

PlaceCard::PlaceCard(QWidget *parent)
    : QFrame(parent), m_name(new QLabel(this)), m_coordinates(new QLabel(this)),
      m_sun(new QLabel(this)), m_bar(new DayBar(this))
{
    m_name->setFont(platform::systemFont(kNameSize, QFont::DemiBold));
    m_coordinates->setForegroundRole(QPalette::PlaceholderText);
    // A name in Latin letters, too, begins at the edge at which the card is read.
    for (QLabel *label : {m_name, m_coordinates})
        label->setAlignment(
            QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
    m_sun->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_name);
    layout->addWidget(m_coordinates);
    layout->addSpacing(kSpacingAboveSun);
    layout->addWidget(m_sun);
    layout->addSpacing(kSpacing);
    layout->addWidget(m_bar);
    setAccessibleName(tr("Chosen place"));
    setPlace(std::nullopt);
}

void PlaceCard::setPlace(const std::optional<Place> &place)
{
    m_name->setText(nameText(place));
    m_coordinates->setText(place && !place->name.isNull() ? coordinatesText(place->location)
                                                          : QString());
    m_coordinates->setVisible(!m_coordinates->text().isEmpty());
    m_sun->setText(sunText(place));
    m_bar->setDaylight(place ? place->sunrise : std::nullopt, place ? place->sunset : std::nullopt);
    setAccessibleDescription(
        QStringList{m_name->text(), m_coordinates->text(), m_sun->text()}.join(". "_L1));
}

void PlaceCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    fillRounded(painter, rect(), kRadius,
                withAlpha(palette().color(QPalette::WindowText), kCardOpacity));
}

} // namespace location
