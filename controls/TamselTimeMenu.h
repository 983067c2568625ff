// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TamselSymbolButton.h"

/// A button that opens a menu of time modes: the title of the chosen mode, which may be empty, and
/// a symbol at the right end.
class TamselTimeMenu : public TamselSymbolButton
{
    Q_OBJECT

public:
    explicit TamselTimeMenu(QWidget *parent = nullptr);

    /// Sizes the menu for its title, keeps the edge at which its symbol is, and centres it
    /// vertically at \p y in the parent's coordinates.
    void alignAtRowCenter(double y);

    /// Where the title ends before the symbol, in the menu's coordinates. Without a title it is
    /// where one would end, outside the menu.
    int titleEnd() const;

protected:
    double outlineRadius() const override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isExpanded() const;
};
