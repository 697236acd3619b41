#include "tests/support/NotingTranslator.h"
#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <QMetaMethod>

/// What others rely on by name: the material dialog's slots, and the contexts of its texts that translators know.
class TestDialogInterface : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void slotsAreInOrder();
    void textsAreTranslatedInTheirContexts_data();
    void textsAreTranslatedInTheirContexts();
};

namespace {

/// A method as it is declared, "name(type argument, type argument)".
QString Declaration(const QMetaMethod& method)
{
    QStringList arguments;
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    for (int i = 0; i < types.size(); ++i) {
        arguments.append(QString::fromLatin1(types.at(i) + ' ' + names.at(i)));
    }
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()), arguments.join(QStringLiteral(", ")));
}

} // namespace

void TestDialogInterface::slotsAreInOrder()
{
    const QMetaObject& meta = MV::CSoftClothMaterialDlg::staticMetaObject;
    QCOMPARE(meta.className(), "MV::CSoftClothMaterialDlg");
    QStringList declarations;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        declarations.append(Declaration(meta.method(i)));
    }
    QCOMPARE(
        declarations,
        (QStringList{
            QStringLiteral("OnChangeCurrentItemOfMaterialList()"), QStringLiteral("OnClickOpenFilePushButton()"),
            QStringLiteral("OnClickSaveFilePushButton()"), QStringLiteral("OnClickDeleteFilePushButton()"),
            QStringLiteral("OnClickLaunchFilePushButton()"), QStringLiteral("OnClickUvRefPushButton()"),
            QStringLiteral("OnClickOpenPathPushButton()"), QStringLiteral("OnClickEmbedTexturePushButton()"),
            QStringLiteral("OnClickPickMaterialPushButton()"), QStringLiteral("OnClickShowMaterialTablePushButton()"),
            QStringLiteral("OnLoadWeightImage(QString kFilePath)"), QStringLiteral("OnItemSelectedChanged()"),
            QStringLiteral("ShowDialog(MV::EDialogMode eMode)"), QStringLiteral("OnFilterMaterialList()"),
            QStringLiteral("DoHotkeyEscape()"),
            QStringLiteral("OnMaterialTextureChanged(BFHANDLE hObject, BF::CArrayList<unsigned long long> "
                           "kMaterialIndices, MV::ETextureChannel eChannel)")}));
}

void TestDialogInterface::textsAreTranslatedInTheirContexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("context");
    const auto row = [](const char* text, const char* context) {
        QTest::newRow(context) << QByteArray(text) << QByteArray(context);
    };
    row("[Hot Key] Modify", "Modify Panel hot key");
    row("[Hot Key] Physics", "LensFlare section hot key");
    row("[Physics Soft Cloth Section] Movira 6", "Message Title");
}

void TestDialogInterface::textsAreTranslatedInTheirContexts()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, context);
    const NotingTranslator translator;
    DialogFixture fixture;
    fixture.Open();
    // There is no diffuse texture, which a message says.
    fixture.Click("qtUvRefPushButton");
    QVERIFY(fixture.TakeOperations().contains(QStringLiteral("ShowMessageBox")));
    QCOMPARE(translator.ContextsOf(text), QList<QByteArray>{context});
}

SOFTCLOTH_TEST(TestDialogInterface)
#include "tst_dialog_interface.moc"
