// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_WALLFIXTURE_H
#define TESTS_APPS_WALLFIXTURE_H

#include "assessedwall.h"
#include "windowfixture.h"

#include "window/wallpage.h"

#include <QAbstractItemView>

/*! \brief Walls, and a window that shows them. */
namespace wallfixture {

using namespace assessedwall;

/*!
 * Rec.2020 with slightly different luminances, called "B2" and so on, and a target of the chromaticities of Rec.709 at
 * 1000 cd/m².
 */
inline DisplayDescription description(int rows, int columns)
{
    DisplayDescription result;
    result.name = QStringLiteral("Stage");
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double luminance = 1100.0 + row + 0.1 * column;
            const QString name = QStringLiteral("%1%2").arg(QChar('A' + row % 26)).arg(column + 1);
            result.wall.cabinets.push_back(cabinet(name, row + 1, column + 1, luminance));
        }
    }
    result.wall.unit = cd;
    result.gamuts.push_back(targetOf(1000.0));
    result.target = nameOf(result.gamuts.back());
    return result;
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
    dim(result.wall.cabinets[5], 0.8);
    return result;
}

} // namespace wallfixture

#endif
