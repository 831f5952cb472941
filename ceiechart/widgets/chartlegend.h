// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTLEGEND_H
#define CEIECHART_WIDGETS_CHARTLEGEND_H

#include <ceiechart/ceiechart_export.h>

#include <QFrame>

#include <memory>

namespace ceiechart {

class LegendEntries;

/*!
 * \brief The legend of a chart, apart from the numbering of its entries and the translations of its captions.
 *
 * The base of both `CEIELegend` classes. Hosts use those classes; there is nothing to derive from this one for.
 */
class CEIECHART_EXPORT ChartLegend : public QFrame {
public:
    ~ChartLegend() override;

    /*!
     * \brief Lays the entries out in a column for exactly Qt::AlignLeft or exactly Qt::AlignRight, else in a row.
     *
     * May be called again. In a column captions are centred and wrap between words. Captions that were written
     * downwards at construction are written across in a row, and downwards again in a column. A legend that is moved
     * beside the chart after its construction keeps captions that read across, for scripts that do not run downwards.
     * Hidden entries stay hidden.
     */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Replaces the caption of the original gamut by \a text, as given: it is not written downwards. */
    void setShowOriginalText(const QString &text);
    /*! \brief Replaces the caption of the target gamut by \a text, as given. */
    void setShowTargetText(const QString &text);
    /*! \brief Replaces the point captions, as given. Ignored on a legend without point entries. */
    void setshowPointText(const QString &target, const QString &original, const QString &managed);

protected:
    ChartLegend(bool showPoint, QWidget *parent);

    const std::unique_ptr<LegendEntries> d;

private:
    Q_DISABLE_COPY(ChartLegend)
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTLEGEND_H
