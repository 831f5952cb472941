// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_LEGACYCHARTS_H
#define CEIECHART_LEGACY_LEGACYCHARTS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/ceiegraphicsview.h>

/*!
 * \file
 * \brief The legacy charts as widgets for Qt Designer.
 *
 * Code generated from a form passes only the parent to a constructor, but the legacy chart also needs its diagram.
 * Therefore there is a class for each diagram.
 */
namespace ceiechart {

/*! \brief The legacy chart with the CIE 1931 x, y diagram. */
class CEIECHART_EXPORT LegacyXyChart : public ::CEIEGraphicsView {
    Q_OBJECT

public:
    /*! \brief Creates a chart. \a parent owns it if it is not null. */
    explicit LegacyXyChart(QWidget *parent);
    ~LegacyXyChart() override;
};

/*! \brief The legacy chart with the CIE 1976 u′, v′ diagram. */
class CEIECHART_EXPORT LegacyUvChart : public ::CEIEGraphicsView {
    Q_OBJECT

public:
    /*! \brief Creates a chart. \a parent owns it if it is not null. */
    explicit LegacyUvChart(QWidget *parent);
    ~LegacyUvChart() override;
};

} // namespace ceiechart

#endif // CEIECHART_LEGACY_LEGACYCHARTS_H
