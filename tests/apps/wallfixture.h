// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_WALLFIXTURE_H
#define TESTS_APPS_WALLFIXTURE_H

#include "windowfixture.h"

#include "display/wallassessment.h"
#include "window/wallpage.h"

#include <QAbstractItemView>

namespace gamutviewer {

constexpr LuminanceUnit cd = LuminanceUnit::CandelaPerSquareMetre;

inline Model::Target color(double Y, double x, double y)
{
    return Model::Target::fromYxy(Y, x, y);
}

/*!
 * Rec.2020 with slightly different luminances, called "B2" and so on, and a target of the chromaticities of Rec.709 at
 * 1000 cd/m².
 */
inline DisplayDescription description(int rows, int columns)
{
    DisplayDescription result;
    result.name = QStringLiteral("Stage");
    const Model::Targets of = Model::rec2020().getTargets();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double luminance = 1100.0 + row + 0.1 * column;
            WallCabinet cabinet;
            cabinet.name = QStringLiteral("%1%2").arg(QChar('A' + row % 26)).arg(column + 1);
            cabinet.row = row + 1;
            cabinet.column = column + 1;
            cabinet.red = color(of.red.Y * luminance, of.red.x, of.red.y);
            cabinet.green = color(of.green.Y * luminance, of.green.x, of.green.y);
            cabinet.blue = color(of.blue.Y * luminance, of.blue.x, of.blue.y);
            result.wall.cabinets.push_back(cabinet);
        }
    }
    result.wall.unit = cd;
    Model::Targets target = Model::rec709().getTargets();
    for (Model::Target *t : {&target.red, &target.green, &target.blue, &target.white}) {
        *t = color(t->Y * 1000.0, t->x, t->y);
    }
    result.gamuts.push_back({Model::ColorGamut("Show", target), cd});
    result.target = QStringLiteral("Show");
    return result;
}

/*! Takes a fifth of its light from \a cabinet. */
inline void dim(WallCabinet &cabinet)
{
    for (Model::Target *t : {&cabinet.red, &cabinet.green, &cabinet.blue}) {
        *t = color(t->Y * 0.8, t->x, t->y);
    }
}

/*! A window that shows the page "Wall". */
struct WallFixture : WindowFixture {
    explicit WallFixture(const DisplayDescription &of)
    {
        window->setDescription(of, QString());
        show(page());
    }

    WallPage *page() { return window->wallPage(); }
    const DisplayWall &wall() { return document().description().wall; }
    QString selectedName()
    {
        const auto cabinet = window->session()->selectedCabinet();
        return cabinet ? wall().cabinets.at(*cabinet).name : QString();
    }
    void click(QAbstractItemView *view, const QModelIndex &index)
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
    }
};

/*! 3 × 4 cabinets of which "B2" is too dim. */
inline DisplayDescription oneDim()
{
    DisplayDescription result = description(3, 4);
    dim(result.wall.cabinets[5]);
    return result;
}

} // namespace gamutviewer

#endif
