#include "pluginfixture.h"

#include <QPluginLoader>
#include <QtTest>

/*!
 * The outer face of the plug-in: identifiers, casts, and the operations that answer empty.
 */
class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    void castsByTheNamesOfTheInterface()
    {
        QObject *object = pluginObject();
        const auto address = [object](const char *name) { return object->qt_metacast(name); };
        QCOMPARE(address("TransformationPlugin"), static_cast<void *>(object));
        QCOMPARE(address("IZQTransformation"), static_cast<void *>(plugin()));
        QCOMPARE(address("com.zqt.qtSlateDesk.IZQTransformation/1.0"), static_cast<void *>(plugin()));
        QCOMPARE(address("com.zqt.qtSlateDesk.TransformationPlugin/1.0"), nullptr);
        QCOMPARE(address(nullptr), nullptr);
    }

    void queriesAnswerEmpty()
    {
        plugin()->reservedHook(this);
        QVERIFY(plugin()->tranPresQuery("Width"_s).isEmpty());
        QVERIFY(plugin()->tranSlideQuery(this, "ID"_s).isEmpty());
        QVERIFY(plugin()->tranItemQuery(this, "ZQSmoothStroke"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPlugin)
#include "tst_plugin.moc"
