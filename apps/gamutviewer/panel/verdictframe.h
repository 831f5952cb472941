// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VERDICTFRAME_H
#define GAMUTVIEWER_VERDICTFRAME_H

#include "display/assessment.h"

#include <QFrame>
#include <QVariant>
#include <QVector>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QVBoxLayout;

namespace gamutviewer {

/*! \brief A ground of a verdict. */
struct VerdictLine {
    QString text; //!< with its mark
    QVariant about; //!< what choosing the line points out; invalid: nothing
    QString toolTip{}; //!< rich text; empty: none
};

/*!
 * \brief A verdict in bold, and its grounds in a list that keeps its height: what is below does not jump in the middle
 * of a drag. A screen reader says it as it changes.
 */
class VerdictFrame : public QFrame {
    Q_OBJECT

public:
    /*! \brief A frame that shows \a shownLines lines of text without scrolling. */
    VerdictFrame(int shownLines, QWidget *parent);

    /*! \brief Verdict and grounds, on a line each. */
    QString text() const;
    QListWidget *lines() const { return m_lines; }

protected:
    /*! \brief Shows \a headline with the mark of \a judgement, and \a lines. */
    void showVerdict(Judgement judgement, const QString &headline, const QVector<VerdictLine> &lines);
    /*! \brief The layout, for what comes below the list. */
    QVBoxLayout *column() const { return m_column; }

Q_SIGNALS:
    /*! \brief The user has chosen a line that is \a about something. */
    void chosen(const QVariant &about);

private:
    void choose(const QListWidgetItem *item);
    //! Keeps that line current that is \a about what the current one was about, or else none.
    void followChosen(const QVariant &about);

    QVBoxLayout *m_column;
    QLabel *m_verdict;
    QListWidget *m_lines;
};

} // namespace gamutviewer

#endif
