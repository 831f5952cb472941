// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "events.h"
#include "soak.h"

#include "following/followedfile.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "window/adddialog.h"
#include "window/diagrampage.h"
#include "window/followmenu.h"
#include "window/gamutsdialog.h"
#include "window/listdialog.h"
#include "window/page.h"
#include "window/tolerancesmenu.h"
#include "window/viewerwindow.h"

#include <editing/targetsession.h>

#include <gamutfiles/descriptionfile.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <filesystem>
#include <memory>
#include <system_error>

namespace soak {

namespace {

using namespace gamutviewer;

//! A folder in which the window may do anything, with a copy of files of all formats.
class Folder {
public:
    Folder()
    {
        if (!m_folder.isValid()) {
            qFatal("there is no folder to work in");
        }
        int number = 0;
        for (const char *source : {SOAK_FILES, SOAK_SAMPLES}) {
            QDirIterator files(QString::fromUtf8(source), QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QFileInfo file(files.next());
                const QString copy = m_folder.filePath(QStringLiteral("%1-%2").arg(++number).arg(file.fileName()));
                // QFile would wait for the disk after each.
                std::error_code error;
                if (std::filesystem::copy_file(QFile::encodeName(file.filePath()).toStdString(),
                        QFile::encodeName(copy).toStdString(), error)) {
                    QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
                    m_files.append(copy);
                }
            }
        }
        m_files.sort();
        m_files.append({m_folder.filePath(QStringLiteral("missing.json")), m_folder.path(), QString(),
            QStringLiteral("/dev/null"), m_folder.filePath(QStringLiteral("no/such/folder.json"))});
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.filePath(QStringLiteral("settings")));
        QDir::setCurrent(m_folder.path());
    }

    QString someFile(Round &round) const { return m_files.at(round.between(0, int(m_files.size()) - 1)); }
    QString newFile(Round &round, const char *suffix) const
    {
        return m_folder.filePath(QStringLiteral("out%1.%2").arg(round.between(0, 3)).arg(QLatin1String(suffix)));
    }

private:
    QTemporaryDir m_folder;
    QStringList m_files;
};

const Folder &folder()
{
    static const Folder instance;
    return instance;
}

//! What a file may say, at random; the empty description when no reader would take it.
DisplayDescription description(Round &round)
{
    const auto point = [&round] { return NamedPoint{round.text(), round.point()}; };
    const auto points = [&](int most) { return round.list<QVector<NamedPoint>>(most, point); };
    DisplayDescription made;
    made.name = round.text();
    made.notes = round.text();
    QStringList names{QStringLiteral("Rec.709"), QStringLiteral("Rec.2020"), QString()};
    for (int i = round.between(0, 5); i > 0; --i) {
        Model::Targets targets = Model::rec709().getTargets();
        for (const Vertex vertex : ceiechart::allGamutVertices) {
            const QPointF xy(round.real(0.05, 0.7), round.real(0.05, 0.7));
            ceiechart::targetAt(targets, vertex) = Model::Target::fromYxy(round.real(0.0, 500.0), xy.x(), xy.y());
        }
        const QString name = QStringLiteral("%1 %2").arg(i).arg(round.text());
        names.append(name);
        made.gamuts.emplace_back(Model::ColorGamut(name.toStdString(), targets), LuminanceUnit(round.between(0, 2)));
    }
    const auto someName = [&] { return names.at(round.between(0, int(names.size()) - 1)); };
    made.original = someName();
    made.declared = someName();
    made.measured = someName();
    made.target = someName();
    made.colorTemperaturePoints = points(5);
    made.measurePoints = points(40);
    made.cmyPoints = points(3);
    const auto read = gamutfiles::readDescription(gamutfiles::descriptionText(made));
    return read ? *read : DisplayDescription();
}

class Use {
public:
    explicit Use(Round &round)
        : m_round(round)
    {
        renew();
        // A question and an open menu run loops of their own, in which the use goes on. The answer to one may open
        // another, so it must not be given by the timer itself, which would not fire again before it returns.
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            QMetaObject::invokeMethod(
                &m_timer, [this] { answer(); }, Qt::QueuedConnection);
        });
        m_timer.start(0);
    }

    void step();

private:
    void renew()
    {
        m_window = std::make_unique<ViewerWindow>();
        m_window->resize(m_round.side(100, 1400), m_round.side(100, 1000));
        m_window->show();
    }
    void answer();
    void answerFileDialog(QFileDialog *dialog);
    void callWindow();
    void callSession();
    void write();
    void drop();
    void openMenu();

    Round &m_round;
    std::unique_ptr<ViewerWindow> m_window;
    QTimer m_timer;
};

void Use::answerFileDialog(QFileDialog *dialog)
{
    // Never by keys: one of them deletes files.
    if (m_round.toss()) {
        dialog->reject();
        return;
    }
    const bool isSave = dialog->acceptMode() == QFileDialog::AcceptSave;
    dialog->selectFile(
        isSave ? folder().newFile(m_round, m_round.toss() ? "json" : "csv") : folder().someFile(m_round));
    QMetaObject::invokeMethod(dialog, m_round.chance(80) ? "accept" : "reject");
}

void Use::answer()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        m_round.beat();
        if (m_round.toss()) {
            popup->close();
        } else {
            sendKey(m_round, popup);
        }
        return;
    }
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal) {
        return;
    }
    m_round.beat();
    if (auto *files = qobject_cast<QFileDialog *>(modal)) {
        answerFileDialog(files);
    } else if (auto *inner = modal->parentWidget(); qobject_cast<QFileDialog *>(inner)) {
        modal->close(); // asks whether a file is to be replaced, or says that there is none
    } else if (auto *dialog = qobject_cast<QDialog *>(modal)) {
        const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
        if (m_round.chance(20)) {
            dialog->reject();
        } else if (m_round.chance(30) && !buttons.isEmpty()) {
            buttons.at(m_round.between(0, int(buttons.size()) - 1))->click();
        } else {
            sendEvent(m_round, someWidget(m_round, dialog));
        }
    }
}

void Use::write()
{
    Round &r = m_round;
    const Picture picture = m_window->currentPage()->picture();
    PictureExtent extent;
    extent.size = QSize(r.chance(80) ? r.side(1, 900) : r.integer(), r.side(-1, 900));
    extent.devicePixelRatio = r.chance(80) ? 1.0 : r.number();
    r.oneOf({
        [&] { m_window->saveTo(folder().newFile(r, "json")); },
        [&] { m_window->saveTo(QStringLiteral("/dev/full")); },
        [&] { m_window->exportTo(folder().newFile(r, "png"), picture, extent); },
        [&] { m_window->exportTo(folder().newFile(r, "svg"), picture, extent); },
        [&] { m_window->exportTo(folder().newFile(r, "pdf"), picture, extent); },
        [&] { m_window->exportTo(folder().newFile(r, "no"), picture, extent); },
        [&] { m_window->exportCorrectionsTo(folder().newFile(r, r.toss() ? "csv" : "json")); },
        [&] { m_window->copyPicture(); },
    });
}

void Use::callSession()
{
    Round &r = m_round;
    TargetSession *session = m_window->session();
    const auto vertex = Vertex(r.between(0, 3));
    const int key = r.between(0, 2);
    r.oneOf({
        [&] { session->setChromaticity(vertex, r.point(), key); },
        [&] { session->setLuminance(vertex, r.number(), key); },
        [&] {
            const double kelvin = r.toss() ? r.real(1000, 30000) : r.number();
            session->setWhiteTemperature(kelvin, r.number(), key);
        },
        [&] { session->setLuminanceUnit(LuminanceUnit(r.between(0, 2))); },
        [&] { session->reset(r.text()); },
        [&] { session->fitToDisplay(); },
        [&] { session->fitToWall(); },
        [&] { session->removeWall(); },
        [&] { session->selectCabinet(std::size_t(r.integer())); },
        [&] {
            session->setLeftOut({std::size_t(r.between(0, 9)), std::size_t(r.integer())}, r.toss());
        },
        [&] { session->pointOut(vertex); },
        [&] { session->select(r.toss() ? std::optional(vertex) : std::nullopt); },
        [&] { session->setHoldWhite(r.toss()); },
        [&] { session->setLockPrimaries(r.toss()); },
        [&] { session->setSnaps(r.toss()); },
        [&] { session->setTolerances(std::nullopt); },
        [&] {
            Tolerances limits;
            limits.limits.whiteUv = r.number();
            limits.limits.luminance = r.number();
            limits.limits.coverage = r.number();
            session->setTolerances(limits);
        },
        [&] { session->beginDrag(vertex); },
        [&] {
            if (const auto target = m_window->document()->target()) {
                session->dragTo(target->getTargets());
            }
        },
        [&] { session->endDrag(); },
        [&] { session->cancelDrag(); },
    });
}

void Use::drop()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder().someFile(m_round)), QUrl(m_round.text())});
    data.setText(m_round.text());
    QDropEvent event(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(someWidget(m_round, m_window.get()), &event);
}

void Use::openMenu()
{
    const QList<QAction *> menus = m_window->menuBar()->actions();
    QMenu *menu = menus.at(m_round.between(0, int(menus.size()) - 1))->menu();
    if (!menu) {
        return;
    }
    if (m_round.toss()) {
        menu->popup(m_window->mapToGlobal(QPoint(5, 5)));
        return;
    }
    Q_EMIT menu->aboutToShow();
    const QList<QAction *> actions = menu->actions();
    if (!actions.isEmpty()) {
        actions.at(m_round.between(0, int(actions.size()) - 1))->trigger();
    }
}

void Use::callWindow()
{
    Round &r = m_round;
    r.oneOf({
        [&] { m_window->setDescription(description(r), r.toss() ? QString() : folder().newFile(r, "json")); },
        [&] { m_window->openPath(folder().someFile(r)); },
        [&] {
            const QStringList files{folder().someFile(r), folder().someFile(r)};
            m_window->openPaths(files, r.toss() ? ViewerWindow::Manner::Open : ViewerWindow::Manner::Add);
        },
        [&] { m_window->closeDocument(); },
        [&] { m_window->document()->history()->undo(); },
        [&] { m_window->document()->history()->redo(); },
        [&] { m_window->pages()->setCurrentIndex(r.between(0, 3)); },
        [&] { m_window->pages()->setCurrentIndex(r.between(0, 3)); },
        [&] {
            m_window->followMenu()->follow(std::make_unique<FollowedFile>(folder().someFile(r)), MeasurementOptions());
        },
        [&] { m_window->followMenu()->keep(); },
        [&] { m_window->followMenu()->stop(); },
        [&] { m_window->tolerancesMenu()->choose(folder().someFile(r)); },
        [&] { m_window->showGamuts(); },
        [&] { write(); },
        [&] { drop(); },
        [&] { openMenu(); },
        [&] { m_window->resize(r.chance(97) ? r.side(1, 1600) : r.between(1, 30000), r.side(1, 1200)); },
        [&] { m_window->setVisible(r.chance(90)); },
        [&] { m_window->close(); },
    });
}

void Use::step()
{
    switch (m_round.between(0, 9)) {
    case 0:
    case 1:
        callWindow();
        break;
    case 2:
        callSession();
        break;
    case 3:
        QApplication::processEvents();
        break;
    case 4:
        if (m_round.chance(3)) {
            m_window.reset(); // in whatever state it is, with a menu that is open for example
            renew();
        }
        break;
    case 5: {
        QWidget *focused = QApplication::focusWidget();
        sendKey(m_round, focused ? focused : m_window.get());
        break;
    }
    default: {
        QWidget *window = m_window.get();
        if (auto *gamuts = m_window->findChild<GamutsDialog *>(); gamuts && m_round.chance(15)) {
            window = gamuts;
        }
        sendEvent(m_round, someWidget(m_round, window));
        break;
    }
    }
}

} // namespace

void useWindow(Round &round)
{
    folder();
    Use use(round);
    while (round.next()) {
        use.step();
    }
}

} // namespace soak
