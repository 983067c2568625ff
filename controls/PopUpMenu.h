// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// A menu in the look of the sheet. Checked actions have a check mark before the title.
class PopUpMenu : public QMenu
{
    Q_OBJECT

public:
    /// Deletes itself when it closes, or is deleted with \p parent.
    explicit PopUpMenu(QWidget *parent);

    /// Opens the menu with the title of \p action at \p position, in global coordinates: the
    /// beginning of the title's horizontal centre line.
    void popUpWithTitleAt(QAction *action, const QPoint &position);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void drawItem(QPainter &painter, const QAction &action, const QRectF &item) const;
};
