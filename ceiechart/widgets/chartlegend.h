// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTLEGEND_H
#define CEIECHART_WIDGETS_CHARTLEGEND_H

#include <ceiechart/ceiechart_export.h>

#include <QFrame>

#include <memory>

namespace ceiechart {

class LegendEntries;

/*!
 * \brief The legend of a chart, without the values of its entries and the translations of its captions.
 *
 * The base class of both `CEIELegend` classes. Hosts use those classes and need not derive from this one. The labels
 * are children of the legend. Use a legend on the GUI thread only.
 */
class CEIECHART_EXPORT ChartLegend : public QFrame {
public:
    ~ChartLegend() override;

    /*!
     * \brief Arranges the entries in a column if \a alignment is exactly Qt::AlignLeft or exactly Qt::AlignRight,
     * otherwise in a row.
     *
     * Can be called repeatedly. In a column, captions are centred and wrap between words. Captions that were written
     * downwards by the constructor are written across in a row and downwards again in a column. If a legend becomes a
     * column only after its construction, its captions remain written across, for scripts that are not written
     * downwards. Hidden entries remain hidden.
     */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Replaces the caption of the original gamut by \a text, which is never written downwards. */
    void setShowOriginalText(const QString &text);
    /*! \brief Replaces the caption of the target gamut by \a text, which is never written downwards. */
    void setShowTargetText(const QString &text);
    /*!
     * \brief Replaces the captions of the three point entries; they are never written downwards. Ignored by a legend
     * without them.
     */
    void setshowPointText(const QString &target, const QString &original, const QString &managed);

    /*! \brief The alignment of the constructor or of setLegendAlignament(), whichever was last. */
    QFlags<Qt::AlignmentFlag> legendAlignament() const;
    /*! \brief The caption of the original gamut, as it is read across. */
    QString showOriginalText() const;
    /*! \brief The caption of the target gamut, as it is read across. */
    QString showTargetText() const;
    /*! \brief The caption of the target point, as it is read across; empty for a legend without point entries. */
    QString targetPointText() const;
    /*! \brief The caption of the original point, as it is read across; empty for a legend without point entries. */
    QString originalPointText() const;
    /*! \brief The caption of the managed point, as it is read across; empty for a legend without point entries. */
    QString managedPointText() const;
    /*! \brief Replaces one caption like setshowPointText(). Ignored by a legend without point entries. */
    void setTargetPointText(const QString &text);
    /*! \brief Replaces one caption like setshowPointText(). Ignored by a legend without point entries. */
    void setOriginalPointText(const QString &text);
    /*! \brief Replaces one caption like setshowPointText(). Ignored by a legend without point entries. */
    void setManagedPointText(const QString &text);

    /*!
     * \name Entries, one by one
     * What setLegendVisible() and isLegendVisible() do by the number of an entry, which differs between the
     * generations. A legend without point entries ignores the setters of points, and its getters of points return
     * false.
     * @{
     */
    /*! \brief Whether the entry of the common gamut is shown. */
    bool isCommonGamutVisible() const;
    /*! \brief Whether the entry of the target gamut is shown. */
    bool isTargetGamutVisible() const;
    /*! \brief Whether the entry of the original gamut is shown. */
    bool isOriginalGamutVisible() const;
    /*! \brief Whether the entry of the target point is shown. */
    bool isTargetPointVisible() const;
    /*! \brief Whether the entry of the original point is shown. */
    bool isOriginalPointVisible() const;
    /*! \brief Whether the entry of the managed point is shown. */
    bool isManagedPointVisible() const;
    /*! \brief Shows or hides the entry of the common gamut. */
    void setCommonGamutVisible(bool visible);
    /*! \brief Shows or hides the entry of the target gamut. */
    void setTargetGamutVisible(bool visible);
    /*! \brief Shows or hides the entry of the original gamut. */
    void setOriginalGamutVisible(bool visible);
    /*! \brief Shows or hides the entry of the target point. */
    void setTargetPointVisible(bool visible);
    /*! \brief Shows or hides the entry of the original point. */
    void setOriginalPointVisible(bool visible);
    /*! \brief Shows or hides the entry of the managed point. */
    void setManagedPointVisible(bool visible);
    /*! @} */

protected:
    ChartLegend(bool showPoint, QWidget *parent);

    const std::unique_ptr<LegendEntries> d;

private:
    Q_DISABLE_COPY(ChartLegend)
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTLEGEND_H
