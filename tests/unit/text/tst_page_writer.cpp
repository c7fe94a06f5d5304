#include "tests/support/test_program.h"
#include "text/page/caption_text.h"
#include "text/page/page_colors.h"
#include "text/page/page_template.h"
#include "text/page/page_words.h"
#include "text/page/page_writer.h"

#include <QRegularExpression>
#include <QTest>

using namespace text;

namespace {

QString words(const char *text)
{
    return QString::fromUtf8(text);
}

PagePicture picture(const QString &name, const QString &caption)
{
    return {caption,
            {{words("pictures/%1-small.jpg").arg(name), QSize(640, 480)},
             {words("pictures/%1-medium.jpg").arg(name), QSize(1280, 960)},
             {words("pictures/%1-large.jpg").arg(name), QSize(2000, 1500)}}};
}

Page pageOf(int count)
{
    Page page;
    page.title = words("Holiday");
    for (int i = 0; i < count; ++i)
        page.pictures.append(picture(words("p%1").arg(i), i == 0 ? words("By the sea") : QString()));
    return page;
}

QString written(const QString &pageTemplate, const Page &page)
{
    const auto html = writePage(pageTemplate, page);
    return html ? *html : html.error().message;
}

} // namespace

class TestPageWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsFields_data();
    void fillsFields();
    void namesLineAndFieldOfWhatIsWrong_data();
    void namesLineAndFieldOfWhatIsWrong();
    void escapesEveryText();
    void givesAddressesThatAreRelative_data();
    void givesAddressesThatAreRelative();
    void writesTheStandardPage_data();
    void writesTheStandardPage();
    void usesEveryFieldThatThereIs();
    void namesEachWidthOnce();
    void refusesAPictureWithoutFiles();
    void keepsColoursReadable_data();
    void keepsColoursReadable();
    void knowsItsWordsInFourLanguages();
    void knowsDirections();
    void refusesPlacesThatAreKeptBack();
    void makesCaptionsOfMetadata();
};

void TestPageWriter::fillsFields_data()
{
    QTest::addColumn<QString>("pageTemplate");
    QTest::addColumn<QString>("html");
    const auto row = [](const char *pageTemplate, const char *html) {
        QTest::newRow(pageTemplate) << words(pageTemplate) << words(html);
    };
    row("plain", "plain");
    row("a } b { c }} d", "a } b { c }} d");
    row("<b>{{title}}</b>", "<b>Holiday</b>");
    row("{{#title}}yes {{title}}{{/title}}{{^title}}no{{/title}}", "yes Holiday");
    row("{{#text}}yes{{/text}}{{^text}}no{{/text}}", "no");
    row("{{#pictures}}[{{pictureNumber}} of {{count}}]{{/pictures}}", "[1 of 2][2 of 2]");
    row("{{#pictures}}{{#pictureCaption}}{{pictureCaption}}{{/pictureCaption}}{{^pictureCaption}}-{{/"
        "pictureCaption}}{{/pictures}}",
        "By the sea-");
    row("{{#pictures}}{{#pictureNext}}>{{pictureNext}}{{/pictureNext}}{{#picturePrevious}}<{{picturePrevious}}"
        "{{/picturePrevious}} {{/pictures}}",
        ">2 <1 ");
    row("{{#grid}}g{{/grid}}{{#rows}}r{{/rows}} {{style}} {{language}} {{direction}}", "g grid en ltr");
    row("{{#pictures}}{{pictureText}};{{/pictures}}", "By the sea;Picture 2 of 2;");
    row("<style>{{lightPaper}}</style>{{title}}", "<style>#ffffff</style>Holiday");
}

void TestPageWriter::fillsFields()
{
    QFETCH(const QString, pageTemplate);
    QTEST(written(pageTemplate, pageOf(2)), "html");
}

void TestPageWriter::namesLineAndFieldOfWhatIsWrong_data()
{
    QTest::addColumn<QString>("pageTemplate");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *pageTemplate, const char *problem) {
        QTest::newRow(pageTemplate) << words(pageTemplate) << words(problem);
    };
    row("\n\n<b>{{titel}}</b>", "line 3: there is no field {{titel}}");
    row("{{ title }}", "line 1: there is no field {{ title }}");
    row("{{}}", "line 1: there is no field {{}}");
    row("a\n{{title", "line 2: a field is not closed");
    row("{{#text}}\n\n", "line 1: {{#text}} is not closed");
    row("{{/text}}", "line 1: {{/text}} closes nothing");
    row("{{#text}}{{#title}}\n{{/text}}{{/title}}", "line 2: {{/text}} closes nothing");
    row("{{pictureFile}}", "line 1: {{pictureFile}} must be inside {{#pictures}}");
    row("{{#pictures}}{{/pictures}}\n{{#pictureCaption}}", "line 2: {{#pictureCaption}} must be inside {{#pictures}}");
    row("{{#pictures}}{{#pictures}}", "line 1: {{#pictures}} cannot be used here");
    row("{{pictures}}", "line 1: {{pictures}} must be {{#pictures}}");
    row("<script>\nvar a = '{{title}}';</script>", "line 2: {{title}} cannot be used in a <script>");
    row("<STYLE>{{title}}</STYLE>", "line 1: {{title}} cannot be used in a <style>");
}

void TestPageWriter::namesLineAndFieldOfWhatIsWrong()
{
    QFETCH(const QString, pageTemplate);
    const auto html = writePage(pageTemplate, pageOf(2));
    QVERIFY(!html.has_value());
    QTEST(html.error().message, "problem");
}

void TestPageWriter::escapesEveryText()
{
    Page page = pageOf(1);
    page.title = words("<script>alert('1')</script> & \"x\"");
    page.text = words("One <b>two\nthree\n\n\n</p><script>four");
    page.pictures[0].caption = words("a\" onload=\"alert(1)\n<img src=x>\x01");
    const QString html =
        written(words("{{title}}|{{text}}|{{#pictures}}{{pictureText}}|{{pictureCaption}}{{/pictures}}"), page);
    QCOMPARE(html,
             words("&lt;script&gt;alert(&#39;1&#39;)&lt;/script&gt; &amp; &quot;x&quot;|"
                   "<p dir=\"auto\">One &lt;b&gt;two<br>three</p>\n<p dir=\"auto\">&lt;/p&gt;&lt;script&gt;four</p>\n|"
                   "a&quot; onload=&quot;alert(1) &lt;img src=x&gt;|"
                   "a&quot; onload=&quot;alert(1)<br>&lt;img src=x&gt;"));
    QCOMPARE(escapedForPage(QString(QChar(0xd800)) + words("😀")), QString(QChar(0xfffd)) + words("😀"));
    // Of the whole page: no text of a person's opens a tag in it.
    const QString whole = written(standardPageTemplate(), page);
    QVERIFY(!whole.contains(words("<script>alert")));
    QVERIFY(!whole.contains(words("<img src=x")));
    QCOMPARE(whole.count(words("<script>")), 1);
}

void TestPageWriter::givesAddressesThatAreRelative_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("address");
    const auto row = [](const char *path, const char *address) {
        QTest::newRow(path) << words(path) << words(address);
    };
    row("pictures/a.jpg", "pictures/a.jpg");
    row("a b#1?%2.jpg", "a%20b%231%3F%252.jpg");
    row("javascript:alert(1)", "javascript%3Aalert%281%29");
    row("Ä, (1).jpg", "%C3%84%2C%20%281%29.jpg");
    row("\"'<>&.jpg", "%22%27%3C%3E%26.jpg");
}

void TestPageWriter::givesAddressesThatAreRelative()
{
    QFETCH(const QString, path);
    QTEST(pageAddress(path), "address");
}

void TestPageWriter::writesTheStandardPage_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("word");
    QTest::newRow("grid") << int(PageStyle::Grid) << words("grid");
    QTest::newRow("rows") << int(PageStyle::Rows) << words("rows");
    QTest::newRow("story") << int(PageStyle::Story) << words("story");
}

void TestPageWriter::writesTheStandardPage()
{
    QFETCH(const int, style);
    QFETCH(const QString, word);
    Page page = pageOf(7);
    page.style = PageStyle(style);
    page.language = words("de");
    page.offersDownload = true;
    const QString html = written(standardPageTemplate(), page);
    QVERIFY2(html.startsWith(words("<!DOCTYPE html>\n<html lang=\"de\" dir=\"ltr\">")), qPrintable(html.left(80)));
    QVERIFY(html.contains(words("<ul class=\"pictures %1\" aria-label=\"Bilder\">").arg(word)));
    QVERIFY(html.contains(words("alt=\"By the sea\"")));
    QVERIFY(html.contains(words("alt=\"Bild 7 von 7\"")));
    QCOMPARE(html.count(words("srcset=\"pictures/p")), 14);
    QCOMPARE(html.count(words(" download>")), 7);
    QCOMPARE(html.count(words("loading=\"lazy\"")), 7 + 3);
    QVERIFY(!html.contains(words("{{")));
    // No address leads to another host.
    static const QRegularExpression addresses(words("(?:href|src)=\"([^\"]*)\""));
    auto found = addresses.globalMatch(html);
    int count = 0;
    for (; found.hasNext(); ++count) {
        const QString address = found.next().captured(1);
        QVERIFY2(address.startsWith(u'#') || address.startsWith(words("pictures/")), qPrintable(address));
    }
    QCOMPARE(count, 7 * 5 + 2 * 6);
    QVERIFY(!html.contains(words("://")));
}

void TestPageWriter::usesEveryFieldThatThereIs()
{
    // A field that the standard template does not use is one that nobody has looked at.
    const QStringList fields = PageTemplate::fields();
    for (const QString &field : fields)
        QVERIFY2(standardPageTemplate().contains(field + words("}}")), qPrintable(field));
}

void TestPageWriter::namesEachWidthOnce()
{
    Page page = pageOf(1);
    for (PageFile &file : page.pictures[0].files)
        file.pixels = QSize(300, 200);
    QCOMPARE(written(words("{{#pictures}}{{pictureFiles}}{{/pictures}}"), page), words("pictures/p0-small.jpg 300w"));
}

void TestPageWriter::refusesAPictureWithoutFiles()
{
    Page page = pageOf(2);
    page.pictures[1].files.clear();
    QVERIFY(!writePage(standardPageTemplate(), page).has_value());
    page = pageOf(2);
    page.pictures[0].files[2].pixels = {};
    QVERIFY(!writePage(standardPageTemplate(), page).has_value());
}

void TestPageWriter::keepsColoursReadable_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<QString>("accent");
    for (const char *paper : {"#ffffff", "#000000", "#808080", "#767676", "#ff0000", "#16181b", "#f4ecd8", "#7f7f00"})
        for (const char *accent : {"#ffffff", "#000000", "#1f5fbf", "#ffff00", "#808080"})
            QTest::addRow("%s on %s", accent, paper) << words(paper) << words(accent);
}

void TestPageWriter::keepsColoursReadable()
{
    QFETCH(const QString, paper);
    QFETCH(const QString, accent);
    const PageColors colors = pageColors(paper, accent);
    QCOMPARE(colors.paper, paper);
    for (const QString &color : {colors.ink, colors.soft, colors.accent})
        QVERIFY2(contrastOf(color, paper) >= 4.5, qPrintable(color));
}

void TestPageWriter::knowsItsWordsInFourLanguages()
{
    QCOMPARE(pageWords(words("de-AT")).close, words("Schließen"));
    QCOMPARE(pageWords(words("FR")).next, words("Suivante"));
    QCOMPARE(pageWords(words("nl")).language, words("nl"));
    QCOMPARE(pageWords(words("ar")).language, words("en"));
    QVERIFY(isLanguageCode(words("de")) && isLanguageCode(words("zh-Hant")) && isLanguageCode(words("es-419")));
    for (const char *none : {"", "d", "deutsch sprache", "de_AT", "de-", "1a", "\"x"})
        QVERIFY2(!isLanguageCode(words(none)), none);
    QCOMPARE(contrastOf(words("#000000"), words("#ffffff")), 21.0);
}

void TestPageWriter::knowsDirections()
{
    for (const char *code : {"ar", "ar-EG", "he", "fa", "ur", "az-Arab"})
        QVERIFY2(isWrittenFromTheRight(words(code)), code);
    for (const char *code : {"en", "de", "ja", "ar-Latn", "arn"})
        QVERIFY2(!isWrittenFromTheRight(words(code)), code);
    Page page = pageOf(1);
    page.language = words("ar");
    page.isFromTheRight = true;
    const QString html = written(standardPageTemplate(), page);
    QVERIFY(html.contains(words("<html lang=\"ar\" dir=\"rtl\">")));
    // Words that are not in the language of the page say so.
    QVERIFY(html.contains(words("<div class=\"bar\" lang=\"en\"")));
}

void TestPageWriter::refusesPlacesThatAreKeptBack()
{
    QCOMPARE(captionProblems(words("{title}, {taken:yyyy} {name}"), Places::AreKeptBack), QStringList());
    QCOMPARE(captionProblems(words("{title}, {city}"), Places::MayBeTold), QStringList());
    for (const QString &token : placeTokens()) {
        const QStringList problems = captionProblems(u'{' + token + u'}', Places::AreKeptBack);
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().contains(u'{' + token + u'}'));
    }
    QCOMPARE(captionProblems(words("{{city}"), Places::AreKeptBack), QStringList());
    QCOMPARE(captionProblems(words("{tilte}"), Places::MayBeTold).size(), 1);
    QCOMPARE(captionProblems(words("{title} {"), Places::MayBeTold).size(), 1);
    QVERIFY(needsPictureTexts(words("a {caption}")));
    QVERIFY(!needsPictureTexts(words("a {name} {{caption}")));
}

void TestPageWriter::makesCaptionsOfMetadata()
{
    TokenFacts facts;
    facts.path = words("/a/b/IMG_1.jpg");
    facts.taken = words("2026-08-14T10:20:30");
    const QHash<QString, QString> texts = {{words("title"), words("The {name} gate")}};
    QCOMPARE(captionFor(words("{title}\n{caption}, {taken:yyyy}"), facts, texts), words("The {name} gate\n, 2026"));
    QCOMPARE(captionFor(words("{title}\n{caption} – {headline}"), facts, texts), words("The {name} gate"));
    QCOMPARE(captionFor(words("{name}"), facts, {}), words("IMG_1"));
    QCOMPARE(captionFor(QString(), facts, {}), QString());
}

QUORLIN_TEST(TestPageWriter)
#include "tst_page_writer.moc"
