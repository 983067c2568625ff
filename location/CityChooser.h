// SPDX-License-Identifier: MIT
#pragma once

#include "location/ZoneCities.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace location {

/// A list of cities with a field to search it. The arrow keys move in the list from the field too;
/// Return takes the first match.
class CityChooser : public QWidget
{
    Q_OBJECT

public:
    /// \p cities must outlive the widget.
    explicit CityChooser(const ZoneCities &cities, QWidget *parent = nullptr);

    /// Selects \p city without emitting chosen(); none clears the selection.
    void setCity(const std::optional<ZoneCity> &city);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void chosen(const location::ZoneCity &city);
    /// Return was pressed while a city was selected.
    void confirmed();

private:
    void search(const QString &query);
    void reportCurrent();
    void takeFirstMatch();

    const ZoneCities &m_cities;
    QList<ZoneCity> m_found;
    QLineEdit *m_field;
    QListWidget *m_list;
    QLabel *m_nothingFound;
};

} // namespace location
