// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "display/filenotes.h"
#include "editing/targetsession.h"
#include "window/gamutsdialog.h"
#include "window/listdialog.h"
#include "window/recentfiles.h"
#include "window/tolerancesmenu.h"

#include <QAction>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QWindow>
#include <QtTest>

#include <functional>

using namespace gamutviewer;
using namespace givenfiles;

/*! Opens files whose every string is markup, a place for an argument and a place for the mark of a change. */
class PlainNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void windowAndPages();
    void gamutsDialog();
    void questionOnOpening();
    void questionOnAList();
    void questionOnChanges();
    void menus();
    void numberedName();

private:
    QString write(const QString &what, const QByteArray &bytes);
    QString description();
    QByteArray list() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QString evil = QStringLiteral("<u>Nm %1 %2[*] ");

QJsonObject point(double x, double y)
{
    return {{QStringLiteral("x"), x}, {QStringLiteral("y"), y}};
}

QJsonObject color(double luminance, double x, double y)
{
    QJsonObject object = point(x, y);
    object.insert(QStringLiteral("Y"), luminance);
    return object;
}

QJsonObject gamut(const QString &name)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("red"), color(212.6, 0.64, 0.33)},
        {QStringLiteral("green"), color(715.2, 0.3, 0.6)}, {QStringLiteral("blue"), color(72.2, 0.15, 0.06)},
        {QStringLiteral("white"), color(1000, 0.3127, 0.329)}, {QStringLiteral("luminanceUnit"), "cd/m2"}};
}

//! Why \a text does not show the names as they are; empty when it does.
QString wrong(const QString &text, bool isRich)
{
    const QString shown = isRich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return text.count(QLatin1String("Nm")) == shown.count(evil.trimmed()) ? QString() : text;
}

QString wrongItem(const QModelIndex &index)
{
    const QString tip = index.data(Qt::ToolTipRole).toString();
    for (const QString &problem : {wrong(index.data(Qt::DisplayRole).toString(), false),
             wrong(tip, Qt::mightBeRichText(tip)), wrong(index.data(Qt::AccessibleTextRole).toString(), false)}) {
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

//! What is wrong in \a top or below it, and how many names are shown there.
QStringList problems(QWidget *top, int &names)
{
    QStringList found;
    const auto look = [&](const QString &where, const QString &text, bool isRich) {
        names += text.count(QLatin1String("Nm"));
        if (!wrong(text, isRich).isEmpty()) {
            found.append(where + QStringLiteral(": ") + text);
        }
    };
    QList<QWidget *> widgets = top->findChildren<QWidget *>();
    widgets.prepend(top);
    for (const QWidget *widget : qAsConst(widgets)) {
        const QString name = QString::fromLatin1(widget->metaObject()->className());
        look(name + QStringLiteral(" tool tip"), widget->toolTip(), Qt::mightBeRichText(widget->toolTip()));
        look(name + QStringLiteral(" accessible"), widget->accessibleName(), false);
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            const bool isRich = label->textFormat() == Qt::RichText
                || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
            look(name, label->text(), isRich);
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            look(name, button->text(), false);
        } else if (const auto *edit = qobject_cast<const QPlainTextEdit *>(widget)) {
            look(name, edit->toPlainText(), false);
        } else if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < box->count(); ++i) {
                look(name, box->itemText(i), false);
                found += wrongItem(box->model()->index(i, 0));
            }
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            const QAbstractItemModel *model = view->model();
            for (int row = 0; model && row < model->rowCount(); ++row) {
                for (int column = 0; column < model->columnCount(); ++column) {
                    const QModelIndex index = model->index(row, column);
                    names += index.data().toString().count(QLatin1String("Nm"));
                    found += wrongItem(index);
                }
            }
            for (int column = 0; model && column < model->columnCount(); ++column) {
                const QString tip = model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
                look(name + QStringLiteral(" header"), tip, Qt::mightBeRichText(tip));
                look(name + QStringLiteral(" header"), model->headerData(column, Qt::Horizontal).toString(), false);
            }
        }
    }
    for (const QAction *action : top->findChildren<QAction *>()) {
        look(QStringLiteral("action"), action->text(), false);
    }
    for (const QMenu *menu : top->findChildren<QMenu *>()) {
        for (const QAction *action : menu->actions()) {
            if (menu->toolTipsVisible()) {
                look(QStringLiteral("action tool tip"), action->toolTip(), Qt::mightBeRichText(action->toolTip()));
            }
        }
    }
    found.removeAll(QString());
    return found;
}

//! Looks through the next dialog, then ends it by \a answer.
class DialogLook : public QObject {
public:
    explicit DialogLook(const std::function<void(QWidget *)> &answer)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, answer] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (dialog && !m_isDone) {
                m_isDone = true;
                found = problems(dialog, names);
                answer(dialog);
            }
        });
        m_timer.start(1);
    }

    QStringList found;
    int names = 0;

private:
    bool m_isDone = false;
    QTimer m_timer;
};

OpenedFiles opened(const QStringList &files)
{
    const auto read = openFiles(files);
    if (!read) {
        qFatal("%s", qPrintable(read.error()));
    }
    return *read;
}

void reject(QWidget *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

} // namespace

void PlainNamesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString PlainNamesTest::write(const QString &what, const QByteArray &bytes)
{
    return writeFile(*m_folder, evil + what, bytes);
}

QString PlainNamesTest::description()
{
    QJsonObject object{{QStringLiteral("version"), 1}, {QStringLiteral("name"), evil + "wall"}};
    QJsonArray gamuts;
    for (const char *part : {"original", "measured", "declared", "target"}) {
        gamuts.append(gamut(evil + part));
        object.insert(QLatin1String(part), evil + part);
    }
    gamuts.append(gamut(evil + "standard"));
    object.insert(QStringLiteral("gamuts"), gamuts);
    object.insert(QStringLiteral("standards"), QJsonArray{evil + "standard"});
    QJsonObject measured = point(0.3, 0.3);
    measured.insert(QStringLiteral("name"), evil + "point");
    object.insert(QStringLiteral("measurePoints"), QJsonArray{measured});
    return write(QStringLiteral("wall.json"), QJsonDocument(object).toJson());
}

QByteArray PlainNamesTest::list() const
{
    const QByteArray name = evil.toUtf8();
    return "name,Y (lux),x,y\nred,190,0.69,0.30\nred,180,0.68,0.31\n" + name + "a,180,0.64,0.33\n";
}

void PlainNamesTest::windowAndPages()
{
    WindowFixture f;
    f.window->setOpened(opened({description(), write(QStringLiteral("meter.csv"), list())}));
    QCOMPARE(f.document().description().name, evil + "wall");
    for (int page = 0; page < f.window->pages()->count(); ++page) {
        f.show(f.window->pages()->widget(page));
        int names = 0;
        const QStringList found = problems(f.window.get(), names);
        QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
        QVERIFY(names > 30);
    }
    f.document().history()->setClean();
    QCOMPARE(f.window->windowHandle()->title().section(QString::fromUtf8(" – "), 0, 0), evil + "wall");
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.63, 0.33)));
    QCOMPARE(f.window->windowHandle()->title().section(QString::fromUtf8(" – "), 0, 0), evil + "wall*");
    int names = 0;
    const QStringList found = problems(f.window.get(), names);
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
}

void PlainNamesTest::gamutsDialog()
{
    WindowFixture f;
    f.window->setOpened(opened({description()}));
    int names = 0;
    const QStringList found = problems(f.window->showGamuts(), names);
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
    QVERIFY(names >= 5);
}

void PlainNamesTest::questionOnOpening()
{
    WindowFixture f;
    const QString wall = description();
    f.window->setOpened(opened({wall}));
    const QByteArray complete = QByteArray(meter).replace("white,", evil.toUtf8() + "p,1,0.3,0.3\nwhite,");
    const DialogLook look(reject);
    QVERIFY(!f.window->openPaths({wall, write(QStringLiteral("full.csv"), complete)}));
    QVERIFY2(look.found.isEmpty(), qPrintable(look.found.join('\n')));
    QVERIFY(look.names >= 6);
}

void PlainNamesTest::questionOnAList()
{
    WindowFixture f;
    const DialogLook look(reject);
    QVERIFY(!f.window->openPath(write(QStringLiteral("meter.csv"), list())));
    QVERIFY2(look.found.isEmpty(), qPrintable(look.found.join('\n')));
    QVERIFY(look.names >= 5);
}

void PlainNamesTest::questionOnChanges()
{
    WindowFixture f;
    f.window->setOpened(opened({description()}));
    f.change();
    const DialogLook look(reject);
    QVERIFY(!f.window->closeDocument());
    QVERIFY2(look.found.isEmpty(), qPrintable(look.found.join('\n')));
    QVERIFY(look.names >= 1);
    // What cannot be read is told by the name of its file.
    const DialogLook bad(reject);
    QVERIFY(!f.window->openPath(write(QStringLiteral("bad.icc"), "bad")));
    QVERIFY2(bad.found.isEmpty(), qPrintable(bad.found.join('\n')));
    QVERIFY(bad.names >= 1);
}

void PlainNamesTest::menus()
{
    WindowFixture f;
    const QString wall = description();
    f.window->setOpened(opened({wall}));
    QVERIFY(f.window->tolerancesMenu()->choose(write(QStringLiteral("t.json"),
        QJsonDocument(QJsonObject{{QStringLiteral("version"), 1}, {QStringLiteral("name"), evil + "limits"},
                          {QStringLiteral("whiteUv"), 0.004},
                          {QStringLiteral("standards"),
                              QJsonArray{QJsonObject{{QStringLiteral("standard"), evil + "standard"},
                                  {QStringLiteral("coverage"), 0.9}, {QStringLiteral("diagram"), "uv"}}}}})
            .toJson())));
    for (QMenu *menu : f.window->findChildren<QMenu *>()) {
        Q_EMIT menu->aboutToShow();
    }
    int names = 0;
    const QStringList found = problems(f.window.get(), names);
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
    QVERIFY(names > 30);
}

void PlainNamesTest::numberedName()
{
    // Two gamuts of one name, and one whose own name has a number's place.
    GamutFile file;
    file.content = GamutFile::Content::DeclaredGamut;
    file.gamut = DisplayGamut(Model::ColorGamut((evil + "m").toStdString(), Model::rec2020().getTargets()));
    const DisplayDescription once = withFile({}, file, GamutRole::Declared);
    file.gamut = DisplayGamut(Model::ColorGamut((evil + "m").toStdString(), Model::rec709().getTargets()));
    QCOMPARE(withFile(once, file, GamutRole::Declared).declared, evil + "m (2)");
}

QTEST_MAIN(PlainNamesTest)
#include "plainnamestest.moc"
