// SPDX-License-Identifier: MIT
// The minimal Qt program in a host's window: it starts and paints one colour. The reference for the
// clock's start.
#include <QApplication>
#include <QPainter>
#include <QWidget>
#include <QWindow>

namespace {

class EmptyWindow : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), Qt::blue); }
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    EmptyWindow window;
    window.winId();
    window.windowHandle()->setParent(
        QWindow::fromWinId(qEnvironmentVariable("XSCREENSAVER_WINDOW").toUInt(nullptr, 16)));
    window.setGeometry(0, 0, 1920, 1080);
    window.show();
    return QApplication::exec();
}
