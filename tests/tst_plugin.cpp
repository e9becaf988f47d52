// SPDX-License-Identifier: MIT
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

    // A host may do with the document of an element what it likes.
    void newElementsShareNoDocument_data()
    {
        const Table<QJsonObject> row("item");
        const QString types = "ZQSmoothStroke ZQStrokesMathFormula ZQGroupItem ZQTextBoard ZQImagePic ZQMath2DCircle "
                              "ZQVectorJuxing ZQLiteratureYinbiao General:everCard ZQMindMapItem ZQBasicTriangleItem "
                              "ZQActiveContainerItem ZQActivityFlipItem ZQChineseCharacterItem ZQWordLatticeItem "
                              "ZQChinesePhoneticItem ZQChineseAlphabetItem ZQFormulaEditorItem ZQDyCoursewareItem "
                              "ZQQuestionItem"_s;
        const QStringList all = types.split(' ');
        for (const QString &type : all) {
            row(type.toUtf8(), QJsonObject{{"Type", type}});
        }
        row("with attachments", "{'Type':'ZQActivityFlipItem','attachments':{'back':'a'}}");
        row("with a question", "Type=ZQQuestionItem R_Content_svg=a");
    }

    void newElementsShareNoDocument()
    {
        QFETCH(const QJsonObject, item);
        const QDomElement element = plugin()->tranItemJSON2ZQTX({}, item);
        const QString expected = toText(element);
        QVERIFY(!element.isNull() && element.previousSibling().isNull() && element.nextSibling().isNull());
        QDomDocument document = element.ownerDocument();
        document.documentElement().setAttribute("strange", "1");
        QCOMPARE(toText(plugin()->tranItemJSON2ZQTX({}, item)), expected);
        document.setContent("<strange/>"_s);
        QCOMPARE(toText(plugin()->tranItemJSON2ZQTX({}, item)), expected);
    }
};

QTEST_GUILESS_MAIN(TestPlugin)
#include "tst_plugin.moc"
