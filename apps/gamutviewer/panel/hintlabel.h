// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_HINTLABEL_H
#define GAMUTVIEWER_HINTLABEL_H

#include <QLabel>
#include <QStringList>

namespace gamutviewer {

/*!
 * \brief A line of text in as much room as there happens to be: of several forms it shows the first that fits.
 *
 * Nothing is cut: where not even the last form fits, it shows none. Screen readers get the first.
 */
class HintLabel : public QLabel {
    Q_OBJECT

public:
    explicit HintLabel(QWidget *parent);

    //! The longest first; none for no text.
    void setForms(const QStringList &forms);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void choose();

    QStringList m_forms;
};

} // namespace gamutviewer

#endif
