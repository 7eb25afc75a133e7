// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Shows the form and prints what its colour manipulator reports.
#include "ui_form.h"

#include <QApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);

    QTextStream out(stdout);
    const QLxColorManipulator *const tint = form.qLxColorManipulator;
    using M = QLxColorManipulator;
    QObject::connect(tint, &M::sliderPressed, [&] { out << "slider pressed" << Qt::endl; });
    QObject::connect(tint, QOverload<int, int, int>::of(&M::colorChanged),
                     [&](int r, int g, int b) { out << "colour " << r << ' ' << g << ' ' << b << Qt::endl; });
    QObject::connect(tint, &M::sliderReleased, [&] { out << "slider released" << Qt::endl; });
    QObject::connect(tint, &M::finalColorSet, [&](QLxColor color) {
        out << "final colour: hue " << color.hue << ", saturation " << color.saturation << ", value "
            << color.value << Qt::endl;
    });

    window.show();
    return QApplication::exec();
}
