#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/panels/save_dialog.h"
#include "app/window/preview/compare_preview.h"
#include "platform/desktop/tags.h"
#include "platform/desktop/user_defaults.h"
#include "platform/file/file_note.h"
#include "platform/foundation/human_texts.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/opening_watch.h"
#include "platform/imageio/source/picture_facts.h"
#include "tests/support/corpus.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

template<typename T> T *inPanel(const char *name)
{
    QWidget *panel = QApplication::activeModalWidget();
    return panel ? panel->findChild<T *>(QString::fromUtf8(name)) : nullptr;
}

/** Works in the next panel; what it does must close it. */
void whenOpen(const std::function<void(window::SaveDialog &)> &work)
{
    QTimer::singleShot(30, [work] {
        if (auto *panel = qobject_cast<window::SaveDialog *>(QApplication::activeModalWidget()))
            work(*panel);
        else
            whenOpen(work);
    });
}

/** Visits the next message, which it must close. */
void whenTold(const std::function<void(QMessageBox &)> &look)
{
    QTimer::singleShot(30, [look] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            look(*box);
        else
            whenTold(look);
    });
}

/** All of its text can be read. */
bool isWhole(const QLabel &label)
{
    const int height = label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height();
    const int width = label.wordWrap() ? label.minimumSizeHint().width() : label.sizeHint().width();
    return label.isVisible() && label.width() >= width && label.height() >= height;
}

void chooseIn(const char *menu, const QString &value)
{
    auto *found = inPanel<QComboBox>(menu);
    QVERIFY(found);
    QVERIFY(found->findData(value) >= 0);
    found->setCurrentIndex(found->findData(value));
    Q_EMIT found->activated(found->currentIndex());
}

} // namespace

/** Saving the current picture through a panel with type, quality and a view of what comes out. */
class SaveAs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const char *key : {"SaveAs", "MOS", "LastPanelFolder", "PictureSavePanelSize"})
            platform::removeUserDefault(QString::fromLatin1(key));
        m_driver = WindowDriver::started();
        QVERIFY(QDir().mkpath(m_driver->folder() + QStringLiteral("/Desktop")));
        QImage image(64, 48, QImage::Format_ARGB32);
        image.fill(QColor(200, 40, 20, 120));
        image.setDotsPerMeterX(2835);
        image.setDotsPerMeterY(2835);
        QVERIFY(image.save(m_driver->folder() + QStringLiteral("/a.b.png")));
    }

    void cleanup()
    {
        m_driver.reset();
        platform::watchOpening({});
    }

    void cannotBeUsedWithoutAPicture() { QVERIFY(!m_driver->control<QAction>("saveAsAction")->isEnabled()); }

    void savesInTheDesktopFolderUnderTheTypeOfTheMenu()
    {
        QString name;
        save([&](window::SaveDialog &panel) {
            name = inPanel<QLineEdit>("fileNameEdit")->text();
            QVERIFY(panel.findChild<QLineEdit *>(QStringLiteral("tagField")));
            confirm(panel);
        });
        QCOMPARE(name, QStringLiteral("a.b.jpeg"));
        QCOMPARE(typeOf("Desktop/a.b.jpeg"), QStringLiteral("public.jpeg"));
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("statusText").contains(QStringLiteral("a.b.jpeg")); }));
    }

    void theExtensionFollowsTheType()
    {
        QStringList names;
        QList<bool> hasQuality;
        save([&](window::SaveDialog &panel) {
            for (const char *type : {"png", "tiff", "jp2", "jpeg", "pdf"}) {
                chooseIn("pubFileType", QString::fromUtf8(type));
                names += inPanel<QLineEdit>("fileNameEdit")->text();
                hasQuality += inPanel<QComboBox>("pubJPEGcompression")->isEnabled();
            }
            confirm(panel);
        });
        QCOMPARE(names.join(u' '), QStringLiteral("a.b.png a.b.tiff a.b.jp2 a.b.jpeg a.b.pdf"));
        QCOMPARE(hasQuality, (QList<bool>{false, false, false, true, false}));
        QCOMPARE(typeOf("Desktop/a.b.pdf"), QStringLiteral("com.adobe.pdf"));
    }

    // The toolkit counts in other units and has dates of its own; its headings are at the top of their row.
    void showsFilesInTheReadersForm()
    {
        qputenv("QUORLIN_LANGUAGE", "de");
        m_driver->startAgain();
        qunsetenv("QUORLIN_LANGUAGE");
        const QString path = m_driver->folder() + QStringLiteral("/Desktop/b.jpeg");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(1234567, 'x')) > 0);
        file.close();
        QStringList shown;
        QList<int> alignments;
        save([&](window::SaveDialog &panel) {
            const auto &files = *panel.findChild<QTreeView *>(QStringLiteral("treeView"))->model();
            const auto rowOf = [&] {
                const QModelIndex folder = panel.findChild<QTreeView *>(QStringLiteral("treeView"))->rootIndex();
                for (int row = 0; row < files.rowCount(folder); ++row)
                    if (files.index(row, 0, folder).data().toString() == QLatin1String("b.jpeg"))
                        return files.index(row, 0, folder);
                return QModelIndex();
            };
            QVERIFY(m_driver->waitFor([&] { return rowOf().isValid(); }));
            for (const int column : {1, 3}) {
                shown.append(rowOf().siblingAtColumn(column).data().toString());
                alignments.append(files.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
            }
            panel.reject();
        });
        QCOMPARE(shown,
                 QStringList({QStringLiteral("1,2 MB"), platform::localDateText(QFileInfo(path).lastModified())}));
        for (const int alignment : alignments)
            QVERIFY(alignment & Qt::AlignVCenter);
    }

    void offersWhatConvertOffers_data()
    {
        QTest::addColumn<QString>("best");
        QTest::newRow("en") << QStringLiteral("9 – best");
        QTest::newRow("de") << QStringLiteral("9 – beste Qualität");
        QTest::newRow("fr") << QStringLiteral("9 – meilleure qualité");
        QTest::newRow("nl") << QStringLiteral("9 – beste");
    }

    // In the same order and words, in every language.
    void offersWhatConvertOffers()
    {
        QFETCH(QString, best);
        qputenv("QUORLIN_LANGUAGE", QTest::currentDataTag());
        m_driver->startAgain();
        qunsetenv("QUORLIN_LANGUAGE");
        m_driver->show("convert");
        const auto entries = [](const QComboBox &menu) {
            QStringList texts;
            for (int i = 0; i < menu.count(); ++i)
                texts += menu.itemText(i);
            return texts;
        };
        const QStringList types = entries(*m_driver->control<QComboBox>("target"));
        const QStringList qualities = entries(*m_driver->control<QComboBox>("convertQuality"));
        QVERIFY(types.contains(QStringLiteral("JPEG 2000")));
        QVERIFY2(qualities.contains(best), qPrintable(qualities.join(u'|')));
        QList<QStringList> offered;
        save([&](window::SaveDialog &panel) {
            offered = {entries(*inPanel<QComboBox>("pubFileType")), entries(*inPanel<QComboBox>("pubJPEGcompression"))};
            panel.reject();
        });
        QCOMPARE(offered, (QList<QStringList>{types, qualities}));
    }

    void takesTheUsualExtensionsAsTheyAreTyped_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("type");
        QTest::newRow("jpg") << "jpeg"
                             << "my.jpg"
                             << "public.jpeg";
        QTest::newRow("tif") << "tiff"
                             << "my.tif"
                             << "public.tiff";
    }

    void takesTheUsualExtensionsAsTheyAreTyped()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, typed);
        save([&](window::SaveDialog &panel) {
            chooseIn("pubFileType", keyword);
            inPanel<QLineEdit>("fileNameEdit")->setText(typed);
            confirm(panel);
        });
        QTEST(typeOf(qPrintable(QStringLiteral("Desktop/") + typed)), "type");
    }

    void beginsWhereItSavedLast()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Album");
        QVERIFY(QDir().mkpath(folder));
        save([&](window::SaveDialog &panel) {
            panel.setDirectory(folder);
            confirm(panel);
        });
        QCOMPARE(typeOf("Album/a.b.jpeg"), QStringLiteral("public.jpeg"));
        m_driver->startAgain();
        QString start;
        save([&](window::SaveDialog &panel) {
            start = panel.directory().absolutePath();
            panel.reject();
        });
        QCOMPARE(start, folder);
    }

    /** The picture is made by a worker, and knows what it knew. */
    void keepsWhatThePictureKnowsAndOpensNothing()
    {
        QVERIFY(QFile::remove(m_driver->folder() + QStringLiteral("/a.b.png")));
        QVERIFY(
            QFile::copy(picturePath("own/metadata/every-group.jpg"), m_driver->folder() + QStringLiteral("/a.b.png")));
        QStringList opened;
        platform::watchOpening([&opened](const QString &name) { opened.append(name); });
        save([&](window::SaveDialog &panel) { confirm(panel); });
        platform::watchOpening({});
        QVERIFY2(opened.isEmpty(), qPrintable(opened.join(u' ')));
        const QString saved = m_driver->folder() + QStringLiteral("/Desktop/a.b.jpeg");
        QCOMPARE(platform::pictureFacts(saved).camera, QStringLiteral("Quorlin Test Camera"));
        QVERIFY(platform::attachedNote(saved).isEmpty()); // who adds its folder wants it too
        QCOMPARE(QDir(m_driver->folder() + QStringLiteral("/Desktop"))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("a.b.jpeg")});
    }

    void bringsBackWhatItReplaced()
    {
        const QString path = m_driver->folder() + QStringLiteral("/Desktop/a.b.jpeg");
        const auto content = [&path] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QFile there(path);
        QVERIFY(there.open(QIODevice::WriteOnly) && there.write("kept") == 4);
        there.close();
        save([&](window::SaveDialog &panel) {
            answer(QMessageBox::Yes);
            confirm(panel);
        });
        QVERIFY(m_driver->waitFor([&] { return content() != "kept"; }));
        m_driver->trigger("undoAction");
        QVERIFY(m_driver->waitFor([&] { return content() == "kept"; }));
    }

    void offersTheTypesOfConvertInTheirOrder()
    {
        QStringList offered;
        save([&](window::SaveDialog &panel) {
            const auto *menu = inPanel<QComboBox>("pubFileType");
            for (int i = 0; i < menu->count(); ++i)
                offered.append(menu->itemText(i));
            panel.reject();
        });
        QCOMPARE(offered.join(u' '), QStringLiteral("JPEG PNG TIFF WebP AVIF JPEG XL JPEG 2000 GIF BMP PDF"));
    }

    void savesLaterTypesToo()
    {
        save([&](window::SaveDialog &panel) {
            chooseIn("pubFileType", QStringLiteral("webp"));
            QVERIFY(inPanel<QComboBox>("pubJPEGcompression")->isEnabled());
            confirm(panel);
        });
        QCOMPARE(typeOf("Desktop/a.b.webp"), QStringLiteral("org.webmproject.webp"));
    }

    void aNameOfAnotherTypeGetsTheExtension()
    {
        save([&](window::SaveDialog &panel) {
            chooseIn("pubFileType", QStringLiteral("png"));
            inPanel<QLineEdit>("fileNameEdit")->setText(QStringLiteral("my picture.gif"));
            confirm(panel);
        });
        QCOMPARE(typeOf("Desktop/my picture.gif.png"), QStringLiteral("public.png"));
    }

    void showsHowLargeItWillBeAndWhatGetsLost()
    {
        double bmp = 0;
        QString said;
        save([&](window::SaveDialog &panel) {
            chooseIn("pubFileType", QStringLiteral("bmp"));
            auto *view = inPanel<window::ComparePreview>("saveAsPreview");
            m_driver->waitFor([view] { return view->estimatedBytes() > 0; });
            bmp = view->estimatedBytes();
            said = view->accessibleDescription() + inPanel<QLabel>("saveAsNote")->text();
            panel.reject();
        });
        QCOMPARE(bmp, 64 * 48 * 3 + 54.0);
        QVERIFY2(said.contains(QStringLiteral("9 KB")) && said.contains(QStringLiteral("sRGB")), qPrintable(said));
        QVERIFY(QDir(m_driver->folder() + QStringLiteral("/Desktop")).isEmpty());
    }

    void asksBeforeAFileIsReplaced()
    {
        const QString path = m_driver->folder() + QStringLiteral("/Desktop/a.b.jpeg");
        QFile there(path);
        QVERIFY(there.open(QIODevice::WriteOnly) && there.write("kept") == 4);
        there.close();
        save([&](window::SaveDialog &panel) {
            answer(QMessageBox::No);
            confirm(panel);
            QVERIFY(panel.isVisible());
            answer(QMessageBox::Yes);
            confirm(panel);
        });
        QCOMPARE(typeOf("Desktop/a.b.jpeg"), QStringLiteral("public.jpeg"));
    }

    void isLargeEnoughToLookAround()
    {
        save([&](window::SaveDialog &panel) {
            panel.resize(1000, 680); // as it opens on a screen of 1280 x 720
            m_driver->waitFor([] { return inPanel<QLabel>("saveAsSize")->text().startsWith(QLatin1String("about")); });
            QTest::qWait(200);
            auto *files = inPanel<QTreeView>("treeView");
            constexpr int leastRows = 7;
            QVERIFY(files->viewport()->height() >= leastRows * files->fontMetrics().height());
            for (const char *name : {"saveAsSize", "saveAsNote", "saveAsTypeLabel", "saveAsQualityLabel"})
                QVERIFY2(isWhole(*inPanel<QLabel>(name)), name);
            auto *view = inPanel<window::ComparePreview>("saveAsPreview");
            QVERIFY(view->width() >= 600 && view->height() >= 250);
            QVERIFY(view->parentWidget()->rect().contains(view->geometry()));
            for (QWidget *each : panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
                QVERIFY2(!each->isVisible() || each->isWindow() || panel.rect().contains(each->geometry()),
                         qPrintable(each->objectName()));
            panel.reject();
        });
    }

    void opensAsLargeAsItWas()
    {
        QSize first;
        save([&](window::SaveDialog &panel) {
            first = panel.size();
            QVERIFY(panel.screen()->availableSize().width() >= first.width());
            QVERIFY(panel.screen()->availableSize().height() >= first.height());
            panel.resize(720, 600);
            panel.reject();
        });
        QSize again;
        save([&](window::SaveDialog &panel) {
            again = panel.size();
            panel.reject();
        });
        QVERIFY(first != again);
        QCOMPARE(again, QSize(720, 600));
    }

    void startsWherePicturesAreWithoutADesktop_data()
    {
        QTest::addColumn<QString>("made");
        QTest::addColumn<QString>("folder");
        QTest::newRow("desktop") << QStringLiteral("/Desktop") << QStringLiteral("/Desktop");
        QTest::newRow("pictures") << QStringLiteral("/Pictures") << QStringLiteral("/Pictures");
        QTest::newRow("neither") << QStringLiteral("/in") << QString();
    }

    void startsWherePicturesAreWithoutADesktop()
    {
        QFETCH(QString, made);
        QFETCH(QString, folder);
        QVERIFY(QDir(m_driver->folder()).rmdir(QStringLiteral("Desktop")));
        QVERIFY(QDir().mkpath(m_driver->folder() + made));
        QString start;
        save([&](window::SaveDialog &panel) {
            start = panel.directory().absolutePath();
            panel.reject();
        });
        QCOMPARE(start, m_driver->folder() + folder);
    }

    void remembersTypeAndQuality()
    {
        save([&](window::SaveDialog &panel) {
            chooseIn("pubJPEGcompression", QStringLiteral("3"));
            confirm(panel);
        });
        m_driver->startAgain();
        QString quality;
        save([&](window::SaveDialog &panel) {
            quality = inPanel<QComboBox>("pubJPEGcompression")->currentData().toString();
            panel.reject();
        });
        QCOMPARE(quality, QStringLiteral("3"));
    }

    void asksForTagsWhereTheSystemHasThem()
    {
        save([&](window::SaveDialog &panel) {
            inPanel<QLineEdit>("tagField")->setText(QStringLiteral("red, holiday photos"));
            confirm(panel);
        });
        QCOMPARE(platform::tagsOf(m_driver->folder() + QStringLiteral("/Desktop/a.b.jpeg")),
                 (QStringList{QStringLiteral("red"), QStringLiteral("holiday photos")}));
    }

    void asksForNoTagsWhereTheSystemHasNone()
    {
        qputenv("QUORLIN_FRAMEWORK_VERSION", "800");
        m_driver->startAgain();
        qunsetenv("QUORLIN_FRAMEWORK_VERSION");
        QCOMPARE(platform::userDefault(QStringLiteral("MOS")).toString(), QStringLiteral("108"));
        save([&](window::SaveDialog &panel) {
            QVERIFY(!panel.findChild<QLineEdit *>(QStringLiteral("tagField")));
            panel.reject();
        });
    }

    void saysWhereItCouldNotBeSaved()
    {
        bool wasTold = false;
        save([&](window::SaveDialog &panel) {
            QFile::remove(m_driver->folder() + QStringLiteral("/a.b.png"));
            whenTold([&wasTold](QMessageBox &box) {
                wasTold = box.text().contains(QStringLiteral("could not be written"));
                box.close();
            });
            confirm(panel);
        });
        QVERIFY(wasTold);
    }

    void givesNamesTheExtensionOfTheType_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("types");
        QTest::addColumn<QString>("result");
        const auto row = [](const char *path, const char *types, const char *result) {
            QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(types) << QString::fromUtf8(result);
        };
        row("/a/b", "png", "/a/b.png");
        row("/a/b.png", "png", "/a/b.png");
        row("/a/b.PNG", "png", "/a/b.PNG");
        row("/a/b.jpg", "jpeg", "/a/b.jpg");
        row("/a/b.jpg", "png", "/a/b.jpg.png");
        row("/a/v1.2", "png", "/a/v1.2.png");
        row("/a/b.c-action", "c-action", "/a/b.c-action");
        row("/a/b.txt", "c-action", "/a/b.txt.c-action");
    }

    void givesNamesTheExtensionOfTheType()
    {
        QFETCH(QString, path);
        QFETCH(QString, types);
        QTEST(window::withAllowedExtension(path, {types}), "result");
    }

    void offersNamesWithOneExtension_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("result");
        const auto row = [](const char *name, const char *extension, const char *before, const char *result) {
            QTest::addRow("%s to %s", name, extension) << QString::fromUtf8(name) << QString::fromUtf8(extension)
                                                       << QString::fromUtf8(before) << QString::fromUtf8(result);
        };
        row("Report.csv", "csv", "", "Report.csv");
        row("Report.CSV", "csv", "", "Report.CSV");
        row("Client A.c-action", "c-action", "", "Client A.c-action");
        row("Client v1.2", "c-action", "", "Client v1.2.c-action");
        row("a.b", "png", "", "a.b.png");
        row("a.png", "jpeg", "png", "a.jpeg");
        row("a.jpg", "png", "jpeg", "a.png");
        row("", "png", "", "");
    }

    void offersNamesWithOneExtension()
    {
        QFETCH(QString, name);
        QFETCH(QString, extension);
        QFETCH(QString, before);
        QTEST(window::renamedTo(name, extension, before), "result");
    }

private:
    void save(const std::function<void(window::SaveDialog &)> &work)
    {
        m_driver->drop({m_driver->folder() + QStringLiteral("/a.b.png")});
        auto *action = m_driver->control<QAction>("saveAsAction");
        QVERIFY(m_driver->waitFor([action] { return action->isEnabled(); }));
        whenOpen(work);
        action->trigger();
        QVERIFY(
            m_driver->waitFor([this] { return !m_driver->text("statusText").startsWith(QLatin1String("Saving")); }));
    }

    void confirm(window::SaveDialog &panel) { QMetaObject::invokeMethod(&panel, "accept", Qt::DirectConnection); }

    static void answer(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(30, [button] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->button(button)->click();
        });
    }

    QString typeOf(const char *name) const
    {
        const auto made = platform::ImageSource::open(m_driver->folder() + u'/' + QString::fromUtf8(name));
        return made ? made->typeIdentifier() : QStringLiteral("nothing");
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(SaveAs)
#include "tst_save_as.moc"
