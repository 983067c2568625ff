// SPDX-License-Identifier: MIT
#include "location/CoordinateFields.h"

#include "location/Look.h"
#include "platform/Appearance.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kLongestText = 24;

QLineEdit *addField(QGridLayout *layout, int column, const QString &name, const QString &example)
{
    auto *field = new QLineEdit;
    field->setPlaceholderText(example);
    field->setMaxLength(kLongestText);
    field->setMinimumHeight(kControlHeight);
    auto *label = new QLabel(name);
    label->setBuddy(field);
    layout->addWidget(label, 0, column);
    layout->addWidget(field, 1, column);
    return field;
}

/// Why the text of \p field is no angle on \p axis; null when it is one or is empty.
QString faultOf(const QLineEdit *field, Axis axis)
{
    if (field->text().trimmed().isEmpty() || degreesFrom(field->text(), axis))
        return {};
    return axis == Axis::Latitude
               ? CoordinateFields::tr(
                     "A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.")
               : CoordinateFields::tr("A longitude is a number of degrees from −180 to 180, such "
                                      "as 24.94 or 70.5 W.");
}

/// Marks \p field as faulty, or as faultless when \p fault is null.
void mark(QLineEdit *field, const QString &fault)
{
    setTextColor(field, fault.isNull() ? field->parentWidget()->palette().color(QPalette::Text)
                                       : platform::Appearance::shared().systemRedColor());
    field->setToolTip(fault);
    field->setAccessibleDescription(fault);
}

} // namespace

CoordinateFields::CoordinateFields(QWidget *parent) : QWidget(parent), m_fault(new QLabel)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setHorizontalSpacing(kControlSpacing);
    layout->setVerticalSpacing(kControlSpacing / 2);
    m_latitude = addField(layout, 0, tr("L&atitude"), u"60.17"_s);
    m_longitude = addField(layout, 1, tr("L&ongitude"), u"24.94"_s);
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
    const QString latitudeFault = faultOf(m_latitude, Axis::Latitude);
    const QString longitudeFault = faultOf(m_longitude, Axis::Longitude);
    mark(m_latitude, latitudeFault);
    mark(m_longitude, longitudeFault);
    setTextColor(m_fault, platform::Appearance::shared().systemRedColor());
    m_fault->setText(longitudeFault.isNull() ? latitudeFault : longitudeFault);
    m_fault->setVisible(!m_fault->text().isEmpty());
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
