// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/gamutsdialog.h"

#include "editing/document.h"
#include "editing/targetedits.h"
#include "editing/targetsession.h"
#include "window/gamutsmodel.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

constexpr QSize firstDialogSize(620, 360);

//! The names of the gamuts of \a description and of those that play a part.
QStringList parts(const DisplayDescription &description)
{
    QStringList names{description.original, description.declared, description.measured, description.target};
    for (const DisplayGamut &gamut : description.gamuts) {
        names.append(nameOf(gamut));
    }
    return names + description.standards;
}

} // namespace

GamutsDialog::GamutsDialog(Document *document, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
{
    setWindowTitle(tr("Gamuts"));
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    layout->addLayout(form);
    m_displayName = new QLineEdit(this);
    form->addRow(tr("&Name of the display:"), m_displayName);
    m_gamuts = new GamutsModel(this);
    m_table = new QTableView(this);
    m_table->setModel(m_gamuts);
    m_table->setAccessibleName(tr("Gamuts and their roles"));
    m_table->setAccessibleDescription(tr("Space gives or takes a role, F2 renames, Delete removes"));
    m_table->setToolTip(m_table->accessibleDescription());
    m_table->verticalHeader()->hide();
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    QHeaderView *header = m_table->horizontalHeader();
    header->setResizeContentsPrecision(1); // row, as the boxes are equally wide in all
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(GamutsModel::nameColumn, QHeaderView::Stretch);
    header->setHighlightSections(false);
    layout->addWidget(m_table, 1);
    m_message = new QLabel(this);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    layout->addWidget(m_message);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_remove = buttons->addButton(tr("&Remove"), QDialogButtonBox::ActionRole);
    m_remove->setToolTip(tr("Remove the gamut from the description"));
    // Return ends the typing of a name, and nothing else.
    for (QAbstractButton *button : buttons->buttons()) {
        qobject_cast<QPushButton *>(button)->setAutoDefault(false);
    }
    layout->addWidget(buttons);

    connect(m_displayName, &QLineEdit::editingFinished, this, &GamutsDialog::nameDisplay);
    connect(m_gamuts, &GamutsModel::nameTyped, this, &GamutsDialog::rename);
    connect(m_gamuts, &GamutsModel::partChosen, this, &GamutsDialog::giveOrTake);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &GamutsDialog::refreshButtons);
    connect(m_remove, &QPushButton::clicked, this, &GamutsDialog::removeCurrent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(document, &Document::edited, this, &GamutsDialog::refresh);
    connect(document, &Document::changed, this, [this] {
        // The numbers of a measurement that is followed are not shown here; somebody may be typing.
        if (m_shownParts != parts(m_document->description())) {
            refresh();
        }
    });
    refresh();
    m_table->setCurrentIndex(m_gamuts->index(0, GamutsModel::nameColumn));
    m_table->setFocus();
    resize(firstDialogSize);
}

QString GamutsDialog::currentName() const
{
    return m_gamuts->nameAt(m_table->currentIndex().row());
}

GamutsDialog::~GamutsDialog()
{
    // The fields outlive this part of the dialog, and lose the focus as they go.
    disconnect(m_displayName, nullptr, this, nullptr);
    disconnect(m_gamuts, nullptr, this, nullptr);
    disconnect(m_table->selectionModel(), nullptr, this, nullptr);
}

void GamutsDialog::refresh()
{
    if (m_document->isDragging()) {
        return; // what moves is not shown here, and its step is still to come
    }
    m_shownParts = parts(m_document->description());
    m_displayName->setText(m_document->description().name);
    m_gamuts->refresh(m_document->description());
    refreshButtons();
}

void GamutsDialog::refreshButtons()
{
    m_remove->setEnabled(hasOwnGamut(m_document->description(), currentName()));
}

void GamutsDialog::giveOrTake(const QString &name, GamutRole role, bool plays)
{
    say(QString());
    m_document->change(withRole(m_document->description(), name, role, plays, m_document->saved()),
        plays ? tr("%1 becomes %2", "step of the history: gamut and part")
                    .arg(oneLine(shownGamutName(name)), gamutRolePhrase(role))
              : tr("%1 is no longer %2", "step of the history: gamut and part")
                    .arg(oneLine(shownGamutName(name)), gamutRolePhrase(role)));
}

void GamutsDialog::rename(const QString &from, const QString &to)
{
    const QString name = to.trimmed();
    const QString reason = whyNotRenamed(m_document->description(), from, name);
    say(reason);
    if (reason.isEmpty()) {
        m_document->change(withGamutRenamed(m_document->description(), from, name),
            tr("rename %1", "step of the history").arg(oneLine(shownGamutName(from))));
    }
}

void GamutsDialog::removeCurrent()
{
    const QString name = currentName();
    if (hasOwnGamut(m_document->description(), name)) {
        say(QString());
        m_document->change(withoutGamut(m_document->description(), name),
            tr("remove %1", "step of the history").arg(oneLine(shownGamutName(name))));
    }
}

void GamutsDialog::nameDisplay()
{
    const QString name = m_displayName->text().trimmed();
    if (name != m_document->description().name) {
        DisplayDescription named = m_document->description();
        named.name = name;
        m_document->change(named, tr("name the display", "step of the history"));
    }
}

void GamutsDialog::say(const QString &text)
{
    m_message->setText(text);
    if (!text.isEmpty()) {
        m_message->setAccessibleName(text);
        QAccessibleEvent event(m_message, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void GamutsDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && m_table->hasFocus()) {
        removeCurrent();
    } else {
        QDialog::keyPressEvent(event);
    }
}

} // namespace gamutviewer
