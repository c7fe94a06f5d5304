#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/properties/property_tree.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTest>

/** The properties of selected pictures are shown side by side. */
class SideBySide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void chosenPicturesStandBesideOneAnother();
    void onePictureStandsAlone();
    void theKeyLeadsToTheNextPicture();

private:
    window::PropertyTree &tree() { return *m_driver->control<window::PropertyTree>("metaTree"); }
    QTreeWidgetItem *property(const QString &name);

    std::unique_ptr<WindowDriver> m_driver;
};

void SideBySide::init()
{
    m_driver = WindowDriver::started();
    QStringList paths;
    for (int i = 0; i < 6; ++i) {
        QImage image(40 + (i == 1 ? 8 : 0), 30, QImage::Format_RGB32);
        image.fill(Qt::gray);
        paths << m_driver->inputFolder() + QStringLiteral("/p%1.png").arg(i);
        QVERIFY(image.save(paths.constLast()));
    }
    m_driver->drop(paths);
}

QTreeWidgetItem *SideBySide::property(const QString &name)
{
    const QList<QTreeWidgetItem *> found = tree().findItems(name, Qt::MatchEndsWith | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.constFirst();
}

void SideBySide::chosenPicturesStandBesideOneAnother()
{
    window::PictureTable &list = m_driver->pictures();
    list.selectRow(0);
    for (const int row : {1, 2})
        list.selectionModel()->select(list.model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_driver->show("metadata");
    QCOMPARE(tree().columnCount(), 4);
    QCOMPARE(tree().headerItem()->text(2), QStringLiteral("p1.png"));
    QTreeWidgetItem *width = property(QStringLiteral("Pixel width"));
    QVERIFY(width);
    QVERIFY2(width->text(0).startsWith(u'≠'), qPrintable(width->text(0)));
    QVERIFY(width->text(1).startsWith(QLatin1String("40")) && width->text(2).startsWith(QLatin1String("48")));
    QVERIFY(width->font(0).weight() > tree().font().weight());
    QVERIFY(!property(QStringLiteral("Pixel height"))->text(0).startsWith(u'≠'));
    QCOMPARE(tree().differenceCount(), 1);
    QCOMPARE(m_driver->text("metaFound"), QStringLiteral("3 pictures, differences: 1"));
    // The contents of a column are copied from there.
    tree().setCurrentItem(width, 2);
    QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(QLatin1String("48")));
}

void SideBySide::onePictureStandsAlone()
{
    window::PictureTable &list = m_driver->pictures();
    list.selectionModel()->setCurrentIndex(list.model()->index(1, 0),
                                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_driver->show("metadata");
    QCOMPARE(tree().columnCount(), 2);
    QCOMPARE(tree().differenceCount(), 0);
    m_driver->show("resize");
    list.selectAll(); // more than have room
    m_driver->show("metadata");
    QCOMPARE(tree().columnCount(), 2);
}

void SideBySide::theKeyLeadsToTheNextPicture()
{
    m_driver->show("metadata");
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
    tree().setFocus();
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("p0.png"));
    QTest::keyClick(&tree(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("p1.png"));
    QTest::keyClick(&tree(), Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("p0.png"));
}

QUORLIN_GUI_TEST(SideBySide)

#include "tst_side_by_side.moc"
