// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WARNINGBAR_H
#define GAMUTVIEWER_WARNINGBAR_H

#include <QFrame>
#include <QStringList>

class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace gamutviewer {

/*! \brief What must be known of the files that were opened: a list above the pages, shown until it is dismissed. */
class WarningBar : public QFrame {
    Q_OBJECT

public:
    explicit WarningBar(QWidget *parent = nullptr);

    /*! \brief Shows \a warnings, one a line, instead of those before; without any, the bar is hidden. */
    void setWarnings(const QStringList &warnings);
    /*! \brief Shows \a warnings below those before. */
    void addWarnings(const QStringList &warnings);
    /*! \brief All since the last setWarnings(), also when they have been dismissed. */
    const QStringList &warnings() const { return m_warnings; }

    QPlainTextEdit *list() const { return m_list; }
    QToolButton *dismissButton() const { return m_dismiss; }

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    void fitList();

    QStringList m_warnings;
    QLabel *m_title;
    QPlainTextEdit *m_list;
    QToolButton *m_dismiss;
};

} // namespace gamutviewer

#endif
