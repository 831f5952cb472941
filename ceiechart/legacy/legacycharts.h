// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_LEGACYCHARTS_H
#define CEIECHART_LEGACY_LEGACYCHARTS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/ceiegraphicsview.h>

/*!
 * \file
 * \brief The legacy chart as forms can have it.
 *
 * The code that is made from a form constructs a widget with its parent only, but the legacy chart also wants the kind
 * of its diagram. So there is one class for each.
 */
namespace ceiechart {

/*! \brief The legacy chart with the CIE 1931 x, y diagram. */
class CEIECHART_EXPORT LegacyXyChart : public ::CEIEGraphicsView {
    Q_OBJECT

public:
    /*! \param parent owns the chart when not null. */
    explicit LegacyXyChart(QWidget *parent);
    ~LegacyXyChart() override;
};

/*! \brief The legacy chart with the CIE 1976 u′, v′ diagram. */
class CEIECHART_EXPORT LegacyUvChart : public ::CEIEGraphicsView {
    Q_OBJECT

public:
    /*! \param parent owns the chart when not null. */
    explicit LegacyUvChart(QWidget *parent);
    ~LegacyUvChart() override;
};

} // namespace ceiechart

#endif // CEIECHART_LEGACY_LEGACYCHARTS_H
