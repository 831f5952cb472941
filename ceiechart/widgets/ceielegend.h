// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CEIELEGEND_H
#define CEIECHART_WIDGETS_CEIELEGEND_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/widgets/chartlegend.h>

namespace NewCEIE {

/*!
 * \brief The legend of a chart: a swatch and a caption for each kind of gamut and, on request, for each kind of point.
 *
 * The entries form a row, or a column if the legend is beside the chart. Their order is original gamut, target gamut,
 * common gamut, target point, original point, managed point. The captions are Chinese in the source code. They are
 * translated by tr() in the constructor and again when the language of the application changes (see
 * ceiechart::installTranslations()). A caption that the host has replaced remains.
 *
 * A chart creates its legend. A host changes it there:
 *
 * \code
 * chart->getLegend()->setShowOriginalText(QStringLiteral("Factory gamut"));
 * chart->getLegend()->setLegendVisible(NewCEIE::CEIELegend::CommonGamut, false);
 * \endcode
 *
 * All labels are children of the legend.
 */
class CEIECHART_EXPORT CEIELegend : public ceiechart::ChartLegend {
    Q_OBJECT
    /*! \brief How the entries are arranged; see setLegendAlignament(). */
    Q_PROPERTY(Qt::Alignment legendAlignament READ legendAlignament WRITE setLegendAlignament)
    /*! \brief The caption of the original gamut. */
    Q_PROPERTY(QString showOriginalText READ showOriginalText WRITE setShowOriginalText)
    /*! \brief The caption of the target gamut. */
    Q_PROPERTY(QString showTargetText READ showTargetText WRITE setShowTargetText)
    /*! \brief The caption of the target point. */
    Q_PROPERTY(QString targetPointText READ targetPointText WRITE setTargetPointText)
    /*! \brief The caption of the original point. */
    Q_PROPERTY(QString originalPointText READ originalPointText WRITE setOriginalPointText)
    /*! \brief The caption of the managed point. */
    Q_PROPERTY(QString managedPointText READ managedPointText WRITE setManagedPointText)
    /*! \brief Whether the entry of the common gamut is shown. */
    Q_PROPERTY(bool commonGamutVisible READ isCommonGamutVisible WRITE setCommonGamutVisible)
    /*! \brief Whether the entry of the target gamut is shown. */
    Q_PROPERTY(bool targetGamutVisible READ isTargetGamutVisible WRITE setTargetGamutVisible)
    /*! \brief Whether the entry of the original gamut is shown. */
    Q_PROPERTY(bool originalGamutVisible READ isOriginalGamutVisible WRITE setOriginalGamutVisible)
    /*! \brief Whether the entry of the target point is shown. */
    Q_PROPERTY(bool targetPointVisible READ isTargetPointVisible WRITE setTargetPointVisible)
    /*! \brief Whether the entry of the original point is shown. */
    Q_PROPERTY(bool originalPointVisible READ isOriginalPointVisible WRITE setOriginalPointVisible)
    /*! \brief Whether the entry of the managed point is shown. */
    Q_PROPERTY(bool managedPointVisible READ isManagedPointVisible WRITE setManagedPointVisible)

public:
    /*! \brief An entry of the legend. */
    enum legendType : int {
        CommonGamut = 0, //!< yellow square
        TargetGamut = 1, //!< black square
        OriginalGamut = 2, //!< white square with a grey outline
        NoEntry = 3, //!< no entry has this value
        TargetPoint = 4, //!< white plus sign with a black outline
        OriginalPoint = 5, //!< grey disc
        ManagedPoint = 6 //!< black ring
    };

    /*!
     * \brief Creates a row with the three gamut entries.
     * \param parent owns the legend if it is not null
     */
    explicit CEIELegend(QWidget *parent);
    /*! \brief Creates a row with the three gamut entries and, if \a showPoint is set, the three point entries. */
    CEIELegend(bool showPoint, QWidget *parent);
    /*!
     * \brief Creates a legend with the three gamut entries and, if \a showPoint is set, the three point entries.
     *
     * If \a alignment is exactly Qt::AlignLeft or exactly Qt::AlignRight, the entries form a column and their captions
     * are written downwards, one character on each line. With any other value, including combinations, the entries form
     * a row. \a parent owns the legend if it is not null.
     */
    CEIELegend(bool showPoint, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIELegend() override;

    /*!
     * \brief Shows or hides the swatch and the caption of an entry.
     *
     * NoEntry, values that are not a legendType, and points in a legend without point entries are ignored.
     */
    void setLegendVisible(legendType type, bool visible);
    /*! \brief Whether an entry is shown; false for NoEntry, for other values without an entry and for missing points.
     */
    bool isLegendVisible(legendType type) const;

protected:
    /*! \brief Creates the entries and arranges them. The last step of the constructors. */
    void initUI(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Creates the three gamut entries. */
    void drawColorLegend(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Creates the three point entries. */
    void drawQCPoint(QFlags<Qt::AlignmentFlag> alignment);
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_CEIELEGEND_H
