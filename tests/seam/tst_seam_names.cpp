#include "tests/seam/support/ScriptRun.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_program.h"

#include <QTest>

namespace {

void addColumns()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
}

void row(const char *expression, const char *outcome)
{
    QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

} // namespace

/** What scripts get from the operations that build names. */
class TestSeamNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesText_data();
    void changesText();
    void takesParts_data();
    void takesParts();
    void answersTests_data();
    void answersTests();
    void convertsValues_data();
    void convertsValues();
    void logsItsNameBeforeUtf8();

private:
    void compareOutcome();

    ScriptRun m_run;
};

void TestSeamNames::changesText_data()
{
    addColumns();
    row("s.hChangeCaseFiles('JOHN smith', 3)", "\"John Smith\"");
    row("s.hChangeCaseFiles('JOHN smith', '3')", "\"John Smith\"");
    row("[0, '0', 4, 'x', 1.5, null].every(m => s.hChangeCaseFiles('JOHN smith', m) === 'JOHN smith')", "true");
    row("s.hChangeCaseFiles('JOHN smith', 1) + s.hChangeCaseFiles('JOHN smith', '2')", "\"john smithJOHN SMITH\"");
    row("s.hChangeCaseFiles('', 3)", "\"\"");
    row("s.hChangeCaseFiles('1ST 2nd a-b', 3)", "\"1st 2nd A-b\"");
    row("s.hChangeCaseFiles(null, 3)", "null");
    row("[0, '0', 4, null].map(m => s.hChangeCaseFiles(null, m))", "[\"(null)\",\"(null)\",\"(null)\",\"(null)\"]");
    row("s.hChangeCaseFiles('a', [])", "TypeError: Expected text, a number or null for mode but received a list");
    row("s.hChangeCaseFiles('a', {})", "TypeError: Expected text, a number or null for mode but received an object");
    row("s.hChangeCaseFiles('a', true)", "TypeError: Expected text, a number or null for mode but received true");
    row("s.hSplitString('a-b--c', '-').join('|')", "\"a|b||c\"");
    row("s.hSplitString('a+b', '+').concat(s.hSplitString('a', '+'), s.hSplitString('', '+')).join('|')", "\"a|b|a|\"");
    row("s.hSplitString('ab', '').length", "1");
    row("s.hSplitString('a(null)b', null).join('|')", "\"a|b\"");
    row("s.hInsertStringInString('name', '_', 0) + s.hInsertStringInString('name', '_', 4)", "\"_namename_\"");
    row("s.hInsertStringInString('name', '_', 5) + s.hInsertStringInString('name', '_', -1)", "\"namename\"");
    row("s.hInsertStringInString(null, '_', 0)", "null");
    row("s.hInsertStringInString('a', '_', 2147483648)",
        "RangeError: Expected a whole number from -2147483648 to 2147483647 for position but received 2147483648");
    row("s.hReplaceStringInString('aAa.a', 'a', '--')", "\"--A--.--\"");
    row("s.hReplaceStringInString('aaa', 'aa', 'a') + s.hReplaceStringInString('a.b', '.', '\\\\1')", "\"aaa\\\\1b\"");
    row("s.hReplaceStringInString('abc', '', 'x')", "\"abc\"");
    row("s.hReplaceStringInString('a', 'a', '')", "\"\"");
    row("s.hRemoveNonLetters('Été 2019!', 'NA') + s.hRemoveNonLetters('Été 2019!', 'OL')", "\"Été2019Été\"");
    row("s.hRemoveNonLetters('Été 2019!', 'na') + s.hRemoveNonLetters('!', 'OL')", "\"Été 2019!\"");
}

void TestSeamNames::changesText()
{
    compareOutcome();
}

void TestSeamNames::takesParts_data()
{
    addColumns();
    row("s.hStripString('Photo01', 'fRight', 2) + s.hStripString('Photo01', 'fLeft', 5)", "\"Photo01\"");
    row("[['fRight', 8], ['fLeft', 8], ['fRight', -1], ['fLeft', -1], ['right', 2], [null, 2]]"
        ".every(a => s.hStripString('Photo01', a[0], a[1]) === 'Photo01')",
        "true");
    row("s.hStripString('Photo01', 'fRight', 7) + s.hStripString('', 'fLeft', 3)", "\"\"");
    row("s.hStripString('a\\u{1F600}', 'fRight', 1).length", "2");
    row("s.hSubsectionString('IMG_1234', 4, 4)", "\"1234\"");
    row("s.hSubsectionString('IMG_1234', 6, 4)", "\"IMG_1234\"");
    row("s.hSubsectionString('IMG_1234', -1, 2)", "\"IMG_1234\"");
    row("s.hSubsectionString('IMG_1234', 8, 0)", "\"\"");
}

void TestSeamNames::takesParts()
{
    compareOutcome();
}

void TestSeamNames::convertsValues_data()
{
    addColumns();
    row("typeof s.hNSDateToNSString(new Date(0))", "\"string\"");
    row("/:0[05] ?.* ?\\S/.test(s.hNSDateToNSString(new Date(1000 * 5)))", "true");
    row("s.hNSDateToNSString(null)", "null");
    row("s.hNSDataToNSString(new Uint8Array([0xc3, 0xa9]).buffer)", "\"é\"");
    row("s.hNSDataToNSString(new Uint8Array([0xe9]).buffer)", "null");
    row("s.hNSDataToNSString(new ArrayBuffer(0))", "\"\"");
    row("s.hNSDataToNSString(null)", "null");
    row("new Uint8Array(s.hNSStringToNSData('Az')).join()", "\"65,122\"");
    row("s.hNSStringToNSData('é')", "null");
    row("s.hNSStringToNSData('').byteLength", "0");
    row("s.hConcatString('a', '', 'c') + s.hConcatString('', '', '')", "\"ac\"");
    row("s.hConcatString('a', null, 'c')", "\"a(null)c\"");
    row("s.hConcatString('a', 1, 'c')", "TypeError: Expected text or null for second but received 1");
    row("s.hConvertNSdToNSstr(new Uint8Array([251, 255, 191, 0]).buffer)", "\"+/+/AA==\"");
    row("s.hConvertNSdToNSstr(new ArrayBuffer(300)).length", "400");
    row("s.hConvertNSdToNSstr(new ArrayBuffer(0))", "\"\"");
    row("s.hConvertNSdToNSstr(null)", "null");
    row("new Uint8Array(s.hConvertNSstrToNSd('+/ +/\\nAA*==')).join()", "\"251,255,191,0\"");
    row("s.hConvertNSstrToNSd('QUJ')", "null");
    row("s.hConvertNSstrToNSd('').byteLength", "0");
    row("s.hGetFileNameWithExt('/a/b/c.tar.gz') + s.hGetFileNameWithExt('/a/b.d/')", "\"c.tar.gzb.d\"");
    row("s.hGetFileNameNoExt('/a/b/c.tar.gz') + s.hGetFileNameNoExt('/a/b/') + s.hGetFileNameNoExt('/a/.profile')",
        "\"c.tarb.profile\"");
    row("s.hConvertAccentLetters('Été ü 写')", "\"Ete u ?\"");
    row("s.hRemoveWhiteSpace('a b\\tc\\u00a0 ')", "\"ab\\tc\u00A0\"");
    row("s.myBaseString2", "null");
    row("(s.myBaseString2 = 'kept', s.hRemoveWhiteSpace(' '), s.myBaseString2)", "\"kept\"");
}

void TestSeamNames::convertsValues()
{
    compareOutcome();
}

void TestSeamNames::answersTests_data()
{
    addColumns();
    row("s.hStringContainsString('a.JPG', 'jpg') + s.hStringContainsString('ÉTÉ', 'été')", "\"YESYES\"");
    row("s.hStringContainsString('a', 'ab') + s.hStringContainsString('a', '') + s.hStringContainsString(null, '')",
        "\"NOYESNO\"");
    row("s.hStringBeginsWith('IMG_1', 'IMG') + s.hStringBeginsWith('IMG_1', 'img')", "\"YESNO\"");
    row("s.hStringBeginsWith('a', 'ab') + s.hStringBeginsWith('a', '') + s.hStringBeginsWith('a', null)",
        "\"NOYESNO\"");
    row("s.hStringEndWith('a.jpg', 'jpg') + s.hStringEndWith('a.JPG', 'jpg') + s.hStringEndWith('jpg', 'jpg')",
        "\"YESNOYES\"");
    row("s.hStringEndWith('a', '') + s.hStringEndWith('', '') + s.hStringEndWith('a', null)", "\"YESYESNO\"");
    row("s.hStringEndWith('jpg', '.jpg')", "RangeError: Expected at most 3 characters for suffix but received 4");
    row("s.hStringEndWith('', 'a')", "RangeError: Expected at most 0 characters for suffix but received 1");
}

void TestSeamNames::answersTests()
{
    compareOutcome();
}

void TestSeamNames::compareOutcome()
{
    QFETCH(QString, expression);
    QTEST(m_run.valueOf(
              QStringLiteral("((s) => (%1))(new cNSStringHandling())").replace(QStringLiteral("%1"), expression)),
          "outcome");
}

void TestSeamNames::logsItsNameBeforeUtf8()
{
    LogCapture log;
    const QString script = QStringLiteral("new cNSStringHandling().hUTF8toNSString('é\\u{1F600}')");
    QCOMPARE(m_run.valueOf(script), QStringLiteral("\"é\U0001F600\""));
    QCOMPARE(log.text(), QByteArray("hUTF8toNSString\n"));
}

QUORLIN_TEST(TestSeamNames)
#include "tst_seam_names.moc"
