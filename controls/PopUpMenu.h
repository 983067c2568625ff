// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// A menu in the look of the sheet. A checked action has a check mark before its title.
class PopUpMenu : public QMenu
{
    Q_OBJECT

public:
    /// Destroyed with \p parent or when it has closed, whichever comes first.
    explicit PopUpMenu(QWidget *parent);

    /// Opens the menu so that the title of \p action begins at \p position, in global coordinates:
    /// the left end of the line through its middle.
    void popUpWithTitleAt(QAction *action, const QPoint &position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void drawItem(QPainter &painter, const QAction &action, const QRectF &item) const;
};
