// SPDX-License-Identifier: MIT
// The least a Qt program can do in a host's window: start, paint one colour, stay. The clock's
// start is compared with it.
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
