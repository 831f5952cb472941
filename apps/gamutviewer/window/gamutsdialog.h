// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTSDIALOG_H
#define GAMUTVIEWER_GAMUTSDIALOG_H

#include "editing/gamutroles.h"

#include <QDialog>

#include <array>
#include <iterator>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace gamutviewer {

class Document;

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
    QTableWidget *table() const { return m_table; }
    QPushButton *removeButton() const { return m_remove; }
    /*! \brief Why something was not changed. */
    QLabel *message() const { return m_message; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    //! What a row was filled from.
    struct Row {
        QString name;
        bool isOwn = false;
        Model::Targets targets;
        std::array<bool, std::size(allGamutRoles)> plays{};

        bool operator==(const Row &other) const;
    };

    bool shows(int row, const Row &wanted) const;
    void refreshButtons();
    void fitColumns();
    void take(QTableWidgetItem *item);
    void rename(const QString &from, const QString &to);
    void removeCurrent();
    void nameDisplay();
    void say(const QString &text);
    QString nameAt(int row) const;

    Document *m_document;
    QLineEdit *m_displayName;
    QTableWidget *m_table;
    QPushButton *m_remove;
    QLabel *m_message;
    std::vector<Row> m_rows; // to fill only those that have changed
    bool m_isFilling = false;
    QStringList m_shownParts;
};

} // namespace gamutviewer

#endif
