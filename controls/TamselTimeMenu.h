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

    /// Sizes the menu for its title and places it at the right end of the row whose middle is at
    /// \p y in the parent's coordinates.
    void alignAtRowCenter(double y);

protected:
    double outlineRadius() const override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isExpanded() const;
};
