// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTSDIALOG_H
#define GAMUTVIEWER_GAMUTSDIALOG_H

#include "editing/gamutroles.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace gamutviewer {

class Document;
class GamutsModel;

/*!
 * \brief The gamuts of the document with the parts that they play: to be given other parts, renamed and removed.
 *
 * It follows the document and stays open beside it. Each change is one step of the history.
 */
class GamutsDialog : public QDialog {
    Q_OBJECT

public:
    /*! \param document must outlive the dialog */
    explicit GamutsDialog(Document *document, QWidget *parent = nullptr);
    ~GamutsDialog() override;

    /*! \brief The name of the display. */
    QLineEdit *displayName() const { return m_displayName; }
    /*! \brief A row for each gamut, the document's own first; the first column has the name, the others the parts. */
    QTableView *table() const { return m_table; }
    QPushButton *removeButton() const { return m_remove; }
    /*! \brief Why something was not changed. */
    QLabel *message() const { return m_message; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    void refreshButtons();
    void giveOrTake(const QString &name, GamutRole role, bool plays);
    void rename(const QString &from, const QString &to);
    void removeCurrent();
    void nameDisplay();
    void say(const QString &text);
    QString currentName() const;

    Document *m_document;
    QLineEdit *m_displayName;
    GamutsModel *m_gamuts;
    QTableView *m_table;
    QPushButton *m_remove;
    QLabel *m_message;
    QStringList m_shownParts;
};

} // namespace gamutviewer

#endif
