// SPDX-License-Identifier: MIT
#include "location/CoordinateFields.h"

#include "platform/Appearance.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kSpacing = 8;
constexpr int kFieldHeight = 30;
constexpr int kLongestText = 24;

QLineEdit *addField(QGridLayout *layout, int column, const QString &name, const QString &example)
{
    auto *field = new QLineEdit;
    field->setPlaceholderText(example);
    field->setMaxLength(kLongestText);
    field->setMinimumHeight(kFieldHeight);
    auto *label = new QLabel(name);
    label->setBuddy(field);
    layout->addWidget(label, 0, column);
    layout->addWidget(field, 1, column);
    return field;
}

bool isFaulty(const QLineEdit *field, Axis axis)
{
    return !field->text().trimmed().isEmpty() && !degreesFrom(field->text(), axis);
}

} // namespace

CoordinateFields::CoordinateFields(QWidget *parent) : QWidget(parent), m_fault(new QLabel)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setHorizontalSpacing(kSpacing);
    layout->setVerticalSpacing(kSpacing / 2);
    m_latitude = addField(layout, 0, u"L&atitude"_s, u"60.17"_s);
    m_longitude = addField(layout, 1, u"L&ongitude"_s, u"24.94"_s);
    m_fault->setWordWrap(true);
    m_fault->hide();
    layout->addWidget(m_fault, 2, 0, 1, 2);
    connect(m_latitude, &QLineEdit::textEdited, this, &CoordinateFields::report);
    connect(m_longitude, &QLineEdit::textEdited, this, &CoordinateFields::report);
    followAppearance();
}

void CoordinateFields::setLocation(const SolarLocation &location)
{
    m_latitude->setText(degreesText(location.latitude));
    m_longitude->setText(degreesText(location.longitude));
    followAppearance();
}

void CoordinateFields::followAppearance()
{
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, platform::Appearance::shared().systemRedColor());
    m_fault->setPalette(warning);
    mark(m_latitude, Axis::Latitude);
    mark(m_longitude, Axis::Longitude);
}

void CoordinateFields::mark(QLineEdit *field, Axis axis)
{
    const bool faulty = isFaulty(field, axis);
    const bool isLatitude = axis == Axis::Latitude;
    const QString fault =
        isLatitude
            ? u"A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S."_s
            : u"A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W."_s;
    QPalette colors = palette();
    if (faulty)
        colors.setColor(QPalette::Text, platform::Appearance::shared().systemRedColor());
    field->setPalette(colors);
    field->setToolTip(faulty ? fault : QString());
    field->setAccessibleDescription(faulty ? fault : QString());
    if (faulty)
        m_fault->setText(fault);
    m_fault->setVisible(isFaulty(m_latitude, Axis::Latitude) ||
                        isFaulty(m_longitude, Axis::Longitude));
}

void CoordinateFields::report()
{
    followAppearance();
    const auto latitude = degreesFrom(m_latitude->text(), Axis::Latitude);
    const auto longitude = degreesFrom(m_longitude->text(), Axis::Longitude);
    if (latitude && longitude)
        Q_EMIT edited(SolarLocation{*latitude, *longitude});
    else
        Q_EMIT edited(std::nullopt);
}

} // namespace location
