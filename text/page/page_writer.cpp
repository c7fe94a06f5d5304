#include "text/page/page_writer.h"

#include "text/page/page_colors.h"
#include "text/page/page_template.h"
#include "text/page/page_words.h"

#include <QCoreApplication>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace text {

namespace {

/** As many pictures are loaded at once, whatever part of the page is visible. */
constexpr int seenFirst = 4;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QString styleWord(PageStyle style)
{
    switch (style) {
    case PageStyle::Grid:
        return key("grid");
    case PageStyle::Rows:
        return key("rows");
    case PageStyle::Story:
        return key("story");
    }
    return {};
}

QString withBreaks(const QString &text)
{
    return escapedForPage(text).replace(u'\n', QStringLiteral("<br>"));
}

/** Each paragraph determines its own direction. */
QString paragraphs(const QString &text)
{
    QString html;
    QStringList lines;
    const auto end = [&] {
        if (!lines.isEmpty())
            html += QStringLiteral("<p dir=\"auto\">") + withBreaks(lines.join(u'\n')) + QStringLiteral("</p>\n");
        lines.clear();
    };
    for (const QString &line : text.split(u'\n')) {
        if (line.trimmed().isEmpty())
            end();
        else
            lines.append(line);
    }
    end();
    return html;
}

/** "pictures/a.jpg 640w, pictures/b.jpg 1280w": each width once. */
QString sourceSet(const QList<PageFile> &files)
{
    QStringList sources;
    int width = 0;
    for (const PageFile &file : files) {
        if (file.pixels.width() > width)
            sources.append(QStringLiteral("%1 %2w").arg(pageAddress(file.path)).arg(file.pixels.width()));
        width = std::max(width, file.pixels.width());
    }
    return sources.join(QStringLiteral(", "));
}

QString orElse(const QString &text, const QString &other)
{
    return text.isEmpty() ? other : text;
}

PageValues valuesOf(const PagePicture &picture, int index, qsizetype count, const PageWords &words)
{
    const PageFile &file = picture.files.at(picture.files.size() > 2 ? 1 : 0);
    const PageFile &large = picture.files.last();
    const QString place = words.picture.arg(index + 1).arg(count);
    PageValues values;
    values.texts = {
        {key("pictureNumber"), QString::number(index + 1)},
        {key("pictureText"), orElse(picture.caption.simplified(), place)},
        {key("pictureFile"), pageAddress(file.path)},
        {key("pictureFiles"), sourceSet(picture.files)},
        {key("pictureWidth"), QString::number(file.pixels.width())},
        {key("pictureHeight"), QString::number(file.pixels.height())},
        {key("pictureRatio"), QString::number(double(large.pixels.width()) / large.pixels.height(), 'f', 4)},
        {key("pictureLarge"), pageAddress(large.path)},
        {key("pictureLargeWidth"), QString::number(large.pixels.width())},
        {key("pictureLargeHeight"), QString::number(large.pixels.height())},
        {key("pictureWait"), index < seenFirst ? QString() : key("yes")},
        {key("pictureNext"), index + 1 < count ? QString::number(index + 2) : QString()},
        {key("picturePrevious"), index > 0 ? QString::number(index) : QString()},
        {key("pictureWords"), place},
    };
    values.markup = {{key("pictureCaption"), withBreaks(picture.caption)}};
    return values;
}

void addColors(PageValues &values, const QString &prefix, const PageColors &colors)
{
    values.texts.insert(prefix + key("Paper"), colors.paper);
    values.texts.insert(prefix + key("Ink"), colors.ink);
    values.texts.insert(prefix + key("Soft"), colors.soft);
    values.texts.insert(prefix + key("Accent"), colors.accent);
}

PageValues valuesOf(const Page &page)
{
    const PageWords words = pageWords(page.language);
    PageValues values;
    values.texts = {{key("language"), page.language},
                    {key("direction"), key(page.isFromTheRight ? "rtl" : "ltr")},
                    {key("title"), page.title.simplified()},
                    {key("style"), styleWord(page.style)},
                    {styleWord(page.style), key("yes")},
                    {key("count"), QString::number(page.pictures.size())},
                    {key("downloads"), page.offersDownload ? key("yes") : QString()},
                    {key("wordLanguage"), words.language},
                    {key("wordPictures"), words.pictures},
                    {key("wordClose"), words.close},
                    {key("wordNext"), words.next},
                    {key("wordPrevious"), words.previous},
                    {key("wordDownload"), words.download}};
    values.markup = {{key("text"), paragraphs(page.text)}};
    addColors(values, key("light"), pageColors(page.lightPaper, page.accent));
    addColors(values, key("dark"), pageColors(page.darkPaper, page.accent));
    for (int i = 0; i < page.pictures.size(); ++i)
        values.pictures.append(valuesOf(page.pictures[i], i, page.pictures.size(), words));
    return values;
}

bool isComplete(const PagePicture &picture)
{
    return !picture.files.isEmpty() &&
           std::all_of(picture.files.begin(), picture.files.end(),
                       [](const PageFile &file) { return !file.path.isEmpty() && !file.pixels.isEmpty(); });
}

} // namespace

platform::Result<QString> writePage(const QString &pageTemplate, const Page &page)
{
    const auto read = PageTemplate::read(pageTemplate);
    if (!read)
        return tl::unexpected(read.error());
    if (!std::all_of(page.pictures.begin(), page.pictures.end(), isComplete))
        return platform::failure(platform::ErrorCode::InvalidValue,
                                 QCoreApplication::translate("text::PageTemplate", "a picture has no files"));
    return read->fill(valuesOf(page));
}

QString pageAddress(const QString &path)
{
    QString address = QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    // "a:b.jpg" would be an address with a scheme; so the colon is encoded, like everything except letters and a few
    // other characters.
    return address;
}

} // namespace text
