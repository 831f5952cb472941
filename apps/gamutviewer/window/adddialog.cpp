// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/adddialog.h"

#include "panel/plaintooltip.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int noRole = -1;
constexpr int textWidth = 420; // pixels
constexpr int mostHeight = 420; // of the list of files

QString shortName(const QString &fileName)
{
    return oneLine(QFileInfo(fileName).fileName());
}

QLabel *plainLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    return label;
}

void disable(QComboBox *box, int index, const QString &reason)
{
    auto *items = qobject_cast<QStandardItemModel *>(box->model());
    if (items) {
        items->item(index)->setEnabled(false);
        items->item(index)->setToolTip(reason);
        items->item(index)->setAccessibleDescription(reason);
    }
}

} // namespace

AddDialog::AddDialog(const DisplayDescription &open, const QString &openName, const QVector<ReadFile> &files,
    bool mayOpenAlone, QWidget *parent)
    : QDialog(parent)
    , m_open(open)
    , m_files(files)
{
    setWindowTitle(tr("Add files"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(
        plainLabel(mayOpenAlone ? tr("\"%1\" is open. Add the files to it, or open them alone?").arg(openName)
                                : tr("Add the files to \"%1\"?").arg(openName),
            this));
    auto *list = new QWidget;
    auto *rows = new QVBoxLayout(list);
    rows->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < files.size(); ++index) {
        rows->addWidget(makeRow(index));
    }
    rows->addStretch();
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(list);
    layout->addWidget(area, 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    connect(m_add, &QPushButton::clicked, this, &QDialog::accept);
    if (mayOpenAlone) {
        m_alone = buttons->addButton(tr("&Open alone"), QDialogButtonBox::ActionRole);
        connect(m_alone, &QPushButton::clicked, this, [this] {
            m_opensAlone = true;
            accept();
        });
    }
    // A description is whole by itself; what else there is belongs to a display.
    const bool isWhole = m_alone && !files.isEmpty() && files.first().file.content == GamutFile::Content::Description;
    QPushButton *usual = isWhole ? m_alone : m_add;
    usual->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    refresh();
    list->setMinimumWidth(textWidth);
    list->adjustSize();
    const int wanted
        = list->layout()->hasHeightForWidth() ? list->layout()->heightForWidth(textWidth) : list->sizeHint().height();
    area->setMinimumSize(textWidth, std::min(wanted, mostHeight));
    usual->setFocus();
}

QWidget *AddDialog::makeRow(int index)
{
    const ReadFile &file = m_files.at(index);
    Row row;
    auto *box = new QWidget;
    auto *layout = new QFormLayout(box);
    layout->setContentsMargins(0, 4, 0, 4);
    QLabel *name = plainLabel(shortName(file.fileName), box);
    name->setToolTip(plainToolTip(oneLine(file.fileName)));
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    layout->addRow(name);
    const auto gamut = file.wall ? std::nullopt : gamutOf(file.file);
    if (gamut) {
        row.role = new QComboBox(box);
        for (const GamutRole role : allGamutRoles) {
            row.role->addItem(gamutRolePhrase(role), int(role));
            const QString reason = whyNotInRole(gamut->getTargets(), role);
            if (!reason.isEmpty()) {
                disable(row.role, row.role->count() - 1, reason);
            }
        }
        row.role->addItem(gamutRolePhrase(std::nullopt), noRole);
        row.role->setCurrentIndex(row.role->findData(file.role ? int(*file.role) : noRole));
        row.role->setAccessibleName(tr("What the gamut of %1 becomes").arg(shortName(file.fileName)));
        layout->addRow(tr("Added as"), row.role);
        connect(
            row.role, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, index] { takeRole(index); });
    }
    row.note = plainLabel(QString(), box);
    row.note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addRow(row.note);
    m_rows.append(row);
    return box;
}

void AddDialog::takeRole(int index)
{
    const int role = m_rows.at(index).role->currentData().toInt();
    ReadFile file = m_files.at(index);
    file.role.reset();
    if (role != noRole) {
        file.role = GamutRole(role);
    }
    m_files.replace(index, file);
    refresh();
}

QString AddDialog::noteFor(const DisplayDescription &open, const ReadFile &file) const
{
    QStringList lines;
    if (file.wall) {
        const auto count = file.wall->cabinets.size() + file.wall->incomplete.size();
        lines.append(count == 1 ? tr("Wall of one cabinet") : tr("Wall of %1 cabinets").arg(count));
    } else if (const auto gamut = gamutOf(file.file)) {
        lines.append(tr("Gamut \"%1\"").arg(oneLine(nameOf(*gamut))));
    }
    if (!file.wall && file.file.content == GamutFile::Content::Measurements
        && !file.file.measurements.others().isEmpty()) {
        lines.append(tr("Measured points: %1").arg(file.file.measurements.others().size()));
    }
    if (file.file.content == GamutFile::Content::Description) {
        lines.append(tr("Gamuts: %1").arg(file.file.description.gamuts.size()));
    }
    const QString display = withFile(open, file).name;
    if (display != open.name) {
        lines.append(tr("The display is then called \"%1\".").arg(oneLine(display)));
    }
    for (const Problem &remark : remarksOnAdding(open, file)) {
        lines.append(QStringLiteral("⚠ %1 %2").arg(shortName(file.fileName), remark.text));
    }
    return lines.join(QLatin1Char('\n'));
}

void AddDialog::refresh()
{
    DisplayDescription open = m_open;
    for (int index = 0; index < m_files.size(); ++index) {
        const ReadFile &file = m_files.at(index);
        const QString text = noteFor(open, file);
        QLabel *note = m_rows.at(index).note;
        note->setText(text);
        if (QComboBox *role = m_rows.at(index).role) {
            role->setAccessibleDescription(text);
        }
        open = withFile(open, file);
    }
}

} // namespace gamutviewer
