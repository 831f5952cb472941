// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDENTRIES_P_H
#define CEIECHART_WIDGETS_LEGENDENTRIES_P_H

#include <QObject>
#include <QString>

#include <array>

class QFrame;
class QLabel;

namespace ceiechart {

/*! \brief The entries of a legend. */
enum class LegendEntry { CommonGamut, TargetGamut, OriginalGamut, TargetPoint, OriginalPoint, ManagedPoint };

/*!
 * \brief The entries of a legend: a swatch and a caption each. Both are labels and children of the legend.
 *
 * All functions ignore entries that have not been created. Captions follow the language of the application, apart from
 * those that a host has replaced.
 */
class LegendEntries : public QObject {
public:
    /*! \brief Translates the caption of an entry into the language of the application. */
    using Translate = QString (*)(LegendEntry entry);

    LegendEntries(QFrame *legend, bool withPoints);

    bool withPoints() const { return m_withPoints; }
    Qt::Alignment alignment() const { return m_alignment; }

    /*! \brief Creates the three gamut entries. Beside the chart, captions are written downwards. */
    void addGamuts(Translate translate, Qt::Alignment alignment);
    /*! \brief Creates the three point entries. Beside the chart, captions are written downwards. */
    void addPoints(Translate translate, Qt::Alignment alignment);

    /*! \brief Arranges the entries in a new layout: a column beside the chart or a row below it. */
    void arrange(Qt::Alignment alignment);

    /*! \brief Shows or hides an entry. A value that is not a LegendEntry is ignored. */
    void setVisible(LegendEntry entry, bool visible);
    /*! \brief Whether an entry is shown; false for a value that is not a LegendEntry. */
    bool isShown(LegendEntry entry) const;
    /*! \brief The caption of an entry as it is read across; empty for an entry that has not been created. */
    QString caption(LegendEntry entry) const;
    /*! \brief Replaces a caption. It is never written downwards and never translated from then on. */
    void setCaption(LegendEntry entry, const QString &text);
    void setPointCaptions(const QString &target, const QString &original, const QString &managed);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Labels {
        QLabel *swatch = nullptr;
        QLabel *caption = nullptr;
        QString verticalCaption; //!< the original text of a caption that is written downwards; null for all others
        QString translated; //!< what was last written as a translation; null after a host has replaced it
    };

    void add(LegendEntry entry, Translate translate, Qt::Alignment alignment);
    void retranslate();
    Labels &labels(LegendEntry entry);
    const Labels *created(LegendEntry entry) const;
    void styleCaption(Labels &labels, bool besideChart) const;
    /*! \brief Writes the caption anew in the same language, or in another. */
    static void write(Labels &labels, const QString &text);

    QFrame *m_legend;
    bool m_withPoints;
    std::array<Labels, 6> m_labels;
    Translate m_translate = nullptr;
    Qt::Alignment m_alignment = Qt::AlignBottom;
    bool m_besideChart = false;
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDENTRIES_P_H
