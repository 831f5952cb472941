// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/gamutsdialog.h"

#include "editing/document.h"
#include "editing/targetedits.h"
#include "editing/targetsession.h"
#include "panel/plaintooltip.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/publishedgamuts.h>

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSet>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace gamutviewer {

namespace {

constexpr int nameColumn = 0;
constexpr int nameRole = Qt::UserRole; // the gamut's name as it is, also while another one is being typed
constexpr QSize firstSize(620, 360);

GamutRole roleOf(int column)
{
    return allGamutRoles[column - 1];
}

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
    QStringList headers{tr("Gamut")};
    for (const GamutRole role : allGamutRoles) {
        headers.append(ceiechart::gamutRoleName(role));
    }
    m_table = new QTableWidget(0, headers.size(), this);
    m_table->setHorizontalHeaderLabels(headers);
    m_table->setAccessibleName(tr("Gamuts and their roles"));
    m_table->setAccessibleDescription(tr("Space gives or takes a role, F2 renames, Delete removes"));
    m_table->setToolTip(m_table->accessibleDescription());
    m_table->verticalHeader()->hide();
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    fitColumns();
    m_table->horizontalHeader()->setHighlightSections(false);
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
    connect(m_table, &QTableWidget::itemChanged, this, &GamutsDialog::take);
    connect(m_table, &QTableWidget::currentCellChanged, this, &GamutsDialog::refreshButtons);
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
    m_table->setCurrentCell(0, nameColumn);
    m_table->setFocus();
    resize(firstSize);
}

QString GamutsDialog::nameAt(int row) const
{
    const QTableWidgetItem *item = m_table->item(row, nameColumn);
    return item ? item->data(nameRole).toString() : QString();
}

GamutsDialog::~GamutsDialog()
{
    // The fields outlive this part of the dialog, and lose the focus as they go.
    disconnect(m_displayName, nullptr, this, nullptr);
    disconnect(m_table, nullptr, this, nullptr);
}

bool GamutsDialog::Row::operator==(const Row &other) const
{
    return name == other.name && isOwn == other.isOwn && plays == other.plays
        && ceiechart::sameTargets(targets, other.targets);
}

//! Whether row number \a row shows \a wanted still, as the user may have changed what the document did not take.
bool GamutsDialog::shows(int row, const Row &wanted) const
{
    const QTableWidgetItem *named = m_table->item(row, nameColumn);
    bool isSame = named && named->text() == oneLine(wanted.name);
    for (int column = 0; isSame && column < m_table->columnCount(); ++column) {
        if (column != nameColumn) {
            const auto role = std::find(std::begin(allGamutRoles), std::end(allGamutRoles), roleOf(column));
            const bool plays = wanted.plays.at(std::size_t(role - std::begin(allGamutRoles)));
            isSame = m_table->item(row, column)->checkState() == (plays ? Qt::Checked : Qt::Unchecked);
        }
    }
    return isSame;
}

void GamutsDialog::fitColumns()
{
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
}

void GamutsDialog::refresh()
{
    if (m_document->isDragging()) {
        return; // what moves is not shown here, and its step is still to come
    }
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    // Columns that fit what they hold are measured anew after each cell that changes.
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const auto setFlags = [](QTableWidgetItem *item, Qt::ItemFlags flags) {
        if (item->flags() != flags) { // as the table takes the same flags for a change, too
            item->setFlags(flags);
        }
    };
    const DisplayDescription &description = m_document->description();
    m_shownParts = parts(description);
    m_displayName->setText(description.name);
    QStringList names;
    for (const DisplayGamut &gamut : description.gamuts) {
        names.append(nameOf(gamut));
    }
    const QHash<QString, int> places = description.gamutPlaces();
    const QSet<QString> standards(description.standards.begin(), description.standards.end());
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        names.append(nameOf(published.gamut));
    }
    names.removeDuplicates();
    m_table->setRowCount(names.size());
    m_rows.resize(std::size_t(names.size()));
    for (int row = 0; row < names.size(); ++row) {
        const QString &name = names.at(row);
        const bool isOwn = places.contains(name);
        const Model::Targets targets = description.gamut(name, places)->getTargets();
        const auto playsIn = [&](GamutRole role) {
            return role == GamutRole::Standard ? standards.contains(name) : gamutInRole(description, role) == name;
        };
        Row shown{name, isOwn, targets, {}};
        std::transform(std::begin(allGamutRoles), std::end(allGamutRoles), shown.plays.begin(), playsIn);
        Row &former = m_rows[std::size_t(row)];
        if (former == shown && shows(row, shown)) {
            continue;
        }
        former = shown;
        for (int column = 0; column < m_table->columnCount(); ++column) {
            QTableWidgetItem *item = m_table->item(row, column);
            if (!item) {
                item = new QTableWidgetItem;
                m_table->setItem(row, column, item);
            }
            if (column == nameColumn) {
                item->setData(nameRole, name);
                item->setText(oneLine(name));
                item->setToolTip(plainToolTip(isOwn ? oneLine(name) : tr("%1: published gamut").arg(oneLine(name))));
                QFont font = m_table->font();
                font.setItalic(!isOwn);
                item->setFont(font);
                setFlags(
                    item, Qt::ItemIsEnabled | Qt::ItemIsSelectable | (isOwn ? Qt::ItemIsEditable : Qt::NoItemFlags));
                continue;
            }
            const GamutRole role = roleOf(column);
            const bool plays = playsIn(role);
            const QString reason = whyNotInRole(targets, role);
            // What a file already has can be taken away.
            item->setToolTip(reason);
            setFlags(item,
                reason.isEmpty() || plays ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                                          : Qt::ItemIsSelectable);
            item->setCheckState(plays ? Qt::Checked : Qt::Unchecked);
            item->setData(Qt::AccessibleTextRole,
                tr("%1: %2", "gamut and part").arg(oneLine(name), ceiechart::gamutRoleName(role)));
            item->setData(Qt::AccessibleDescriptionRole, reason);
        }
    }
    fitColumns();
    refreshButtons();
}

void GamutsDialog::refreshButtons()
{
    m_remove->setEnabled(hasOwnGamut(m_document->description(), nameAt(m_table->currentRow())));
}

void GamutsDialog::take(QTableWidgetItem *item)
{
    if (m_isFilling) {
        return;
    }
    const QString name = nameAt(item->row());
    if (item->column() == nameColumn) {
        if (item->text() != oneLine(name)) {
            rename(name, item->text());
        }
        return;
    }
    const GamutRole role = roleOf(item->column());
    const bool plays = item->checkState() == Qt::Checked;
    if (playsRole(m_document->description(), name, role) != plays) {
        say(QString());
        m_document->change(withRole(m_document->description(), name, role, plays, m_document->saved()),
            plays ? tr("%1 becomes %2", "step of the history: gamut and part")
                        .arg(oneLine(shownGamutName(name)), gamutRolePhrase(role))
                  : tr("%1 is no longer %2", "step of the history: gamut and part")
                        .arg(oneLine(shownGamutName(name)), gamutRolePhrase(role)));
    }
}

void GamutsDialog::rename(const QString &from, const QString &to)
{
    const QString name = to.trimmed();
    const QString reason = whyNotRenamed(m_document->description(), from, name);
    say(reason);
    if (reason.isEmpty()) {
        m_document->change(withGamutRenamed(m_document->description(), from, name),
            tr("rename %1", "step of the history").arg(oneLine(shownGamutName(from))));
    } else {
        refresh();
    }
}

void GamutsDialog::removeCurrent()
{
    const QString name = nameAt(m_table->currentRow());
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
