// SPDX-License-Identifier: MIT
// Shows the controls or renders them to a picture; see script/gallery --help.
#include "controls/gallery/Gallery.h"
#include "platform/Appearance.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;
using platform::Appearance;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{u"snapshot"_s, u"Write a picture instead."_s, u"FILE.png"_s},
                       {u"scale"_s, u"Pixels per point of the picture."_s, u"N"_s, u"1"_s},
                       {u"light"_s, u"Only the light appearance."_s},
                       {u"dark"_s, u"Only the dark appearance."_s}});
    parser.process(application);

    const Appearance light(Appearance::Scheme::Light);
    const Appearance dark(Appearance::Scheme::Dark);
    QWidget window;
    window.setWindowTitle(u"Controls"_s);
    auto *layout = new QHBoxLayout(&window);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    for (const Appearance *appearance : {&light, &dark}) {
        if (parser.isSet(appearance == &light ? u"dark"_s : u"light"_s))
            continue;
        auto *gallery = new Gallery(*appearance);
        gallery->setFixedSize(gallery->size());
        layout->addWidget(gallery);
    }
    if (!parser.isSet(u"snapshot"_s)) {
        window.show();
        return QApplication::exec();
    }
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const double scale = parser.value(u"scale"_s).toDouble();
    QImage picture(window.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    window.render(&picture);
    return picture.save(parser.value(u"snapshot"_s)) ? 0 : 1;
}
