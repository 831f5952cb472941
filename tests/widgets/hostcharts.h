// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_WIDGETS_HOSTCHARTS_H
#define CEIECHART_TESTS_WIDGETS_HOSTCHARTS_H

#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <gamutmodel/colorgamut.h>

#include <QCoreApplication>
#include <QList>

#include <memory>

/*! \brief The charts of a host, with gamuts. */
namespace hostcharts {

using Current = NewCEIE::CEIEGraphicsView;
using Legacy = ::CEIEGraphicsView;

inline Model::ColorGamut wall()
{
    using Model::Target;
    return Model::ColorGamut("LED wall",
        {Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718), Target::fromYxy(126, 0.133, 0.075),
            Target::fromYxy(1000, 0.2829, 0.2971)});
}

inline Model::ColorGamutInfo legacyRecord(const Model::ColorGamut &gamut)
{
    const Model::Targets &targets = gamut.getTargets();
    return {targets.red, targets.green, targets.blue, targets.white};
}

inline void setGamuts(Current &chart)
{
    chart.setColorGamut(Model::rec709(), wall(), {Model::rec2020(), Model::dciP3D65()});
}

inline void setGamuts(Legacy &chart)
{
    chart.setDrawColorTPoint(false);
    chart.setColorGamut(legacyRecord(Model::rec709()), legacyRecord(wall()));
}

inline std::unique_ptr<Current> currentChart()
{
    return std::make_unique<Current>(nullptr);
}

inline std::unique_ptr<Legacy> legacyChart(DrawCEIPicture::CEIEType type)
{
    return std::make_unique<Legacy>(nullptr, type);
}

/*! \brief Lets everything that is posted happen. */
inline void settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

} // namespace hostcharts

#endif // CEIECHART_TESTS_WIDGETS_HOSTCHARTS_H
