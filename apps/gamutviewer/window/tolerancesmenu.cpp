// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/tolerancesmenu.h"

#include "display/gamutfiles.h"
#include "display/samples.h"
#include "editing/targetsession.h"
#include "panel/plaintooltip.h"
#include "window/settings.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>

namespace gamutviewer {

namespace {

const QString fileKey = QStringLiteral("tolerances/file");

QString shownName(const QString &fileName)
{
    const Outcome<Tolerances> tolerances = readTolerancesFile(fileName);
    QString name = tolerances && !tolerances->name.isEmpty() ? tolerances->name : QFileInfo(fileName).fileName();
    return oneLine(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

TolerancesMenu::TolerancesMenu(TargetSession *session, QWidget *parent)
    : QMenu(tr("T&olerances"), parent)
    , m_session(session)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &TolerancesMenu::fill);
    // A file that has gone since is no reason to trouble anyone at the start.
    const QString remembered = Settings().value(fileKey).toString();
    if (!remembered.isEmpty()) {
        read(remembered);
    }
    fill();
}

bool TolerancesMenu::read(const QString &fileName)
{
    if (fileName.isEmpty()) {
        m_fileName.clear();
        m_session->setTolerances(std::nullopt);
        return true;
    }
    const Outcome<Tolerances> tolerances = readTolerancesFile(fileName);
    if (!tolerances) {
        Q_EMIT refused(tolerances.problem().message(fileName));
        return false;
    }
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_session->setTolerances(*tolerances);
    QVector<FileWarning> warnings;
    for (const Problem &warning : tolerances.warnings()) {
        warnings.append({fileName, warning});
    }
    if (!warnings.isEmpty()) {
        Q_EMIT warned(warnings);
    }
    return true;
}

bool TolerancesMenu::choose(const QString &fileName)
{
    if (!read(fileName)) {
        return false;
    }
    Settings().setValue(fileKey, m_fileName);
    return true;
}

void TolerancesMenu::fill()
{
    clear();
    auto *choices = new QActionGroup(this);
    const auto add = [&](const QString &text, const QString &fileName) {
        QAction *action = addAction(text, this, [this, fileName] { choose(fileName); });
        action->setCheckable(true);
        action->setChecked(fileName == m_fileName && fileName.isEmpty() == !m_session->tolerances());
        action->setToolTip(plainToolTip(fileName));
        choices->addAction(action);
    };
    add(tr("&None"), QString());
    QStringList files = shippedTolerances();
    if (!m_fileName.isEmpty() && !files.contains(m_fileName)) {
        files.append(m_fileName);
    }
    for (const QString &file : qAsConst(files)) {
        add(shownName(file), file);
    }
    addSeparator();
    addAction(tr("&Choose file…"), this, &TolerancesMenu::chooseByDialog);
}

void TolerancesMenu::chooseByDialog()
{
    const QString fileName = QFileDialog::getOpenFileName(parentWidget(), tr("Choose tolerances"),
        QFileInfo(m_fileName).path(), tr("Tolerances (*.json)") + QStringLiteral(";;") + tr("All files (*)"));
    if (!fileName.isEmpty()) {
        choose(fileName);
    }
}

} // namespace gamutviewer
