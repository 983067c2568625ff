// SPDX-License-Identifier: MIT
#include "location/CityChooser.h"

#include "location/Look.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kRowsShown = 7;
constexpr int kRowHeight = 26;

} // namespace

CityChooser::CityChooser(const ZoneCities &cities, QWidget *parent)
    : QWidget(parent), m_cities(cities), m_field(new QLineEdit(this)),
      m_list(new QListWidget(this)), m_nothingFound(new QLabel(tr("No city found"), m_list))
{
    m_field->setPlaceholderText(tr("Search for a city or country"));
    m_field->setAccessibleName(tr("Search for a city or country"));
    m_field->setClearButtonEnabled(true);
    m_field->setMinimumHeight(kControlHeight);
    m_field->installEventFilter(this);
    m_list->setAccessibleName(tr("Cities"));
    m_list->setUniformItemSizes(true);
    m_list->setFixedHeight(kRowsShown * kRowHeight + 2 * m_list->frameWidth()); // whole rows only
    m_nothingFound->setAlignment(Qt::AlignCenter);
    m_nothingFound->setForegroundRole(QPalette::PlaceholderText);
    auto *centred = new QVBoxLayout(m_list);
    centred->addWidget(m_nothingFound);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(kControlSpacing);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    setFocusProxy(m_field);
    connect(m_field, &QLineEdit::textChanged, this, &CityChooser::search);
    connect(m_list, &QListWidget::currentRowChanged, this, &CityChooser::reportCurrent);
    search({});
}

void CityChooser::setCity(const std::optional<ZoneCity> &city)
{
    const QSignalBlocker blocker(m_list);
    const auto row = std::ranges::find_if(
        m_found, [&](const ZoneCity &c) { return city && c.zone == city->zone; });
    m_list->setCurrentRow(row == m_found.end() ? -1 : int(row - m_found.begin()));
}

void CityChooser::search(const QString &query)
{
    const QSignalBlocker blocker(m_list);
    m_found = m_cities.matching(query);
    m_list->clear();
    for (const ZoneCity &city : std::as_const(m_found)) {
        auto *item = new QListWidgetItem(city.fullName(), m_list);
        item->setSizeHint({0, kRowHeight});
    }
    m_list->setCurrentRow(-1);
    m_nothingFound->setVisible(m_found.isEmpty());
    if (m_found.isEmpty())
        announce(m_nothingFound);
}

void CityChooser::reportCurrent()
{
    const int row = m_list->currentRow();
    if (row >= 0)
        Q_EMIT chosen(m_found[row]);
}

void CityChooser::takeFirstMatch()
{
    if (m_list->currentRow() < 0 && !m_field->text().isEmpty() && !m_found.isEmpty())
        m_list->setCurrentRow(0);
    if (m_list->currentRow() >= 0)
        Q_EMIT confirmed();
}

bool CityChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        takeFirstMatch();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace location
