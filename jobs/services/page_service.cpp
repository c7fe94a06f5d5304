#include "jobs/services/page_service.h"

#include "jobs/services/page_texts.h"
#include "meta/metadata_file.h"
#include "meta/sidecar_metadata.h"

#include "platform/file/regular_file.h"
#include "platform/imageio/source/image_source.h"
#include "platform/values/fields.h"
#include "text/page/caption_text.h"
#include "text/page/page_template.h"
#include "text/page/page_words.h"
#include "text/page/page_writer.h"
#include "text/services/token_facts.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace jobs {

namespace {

using platform::Fields;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

text::PageStyle styleFrom(const Fields &fields)
{
    const QString word = fields.text("style");
    if (word == key("grid"))
        return text::PageStyle::Grid;
    if (word == key("rows"))
        return text::PageStyle::Rows;
    if (word == key("story"))
        return text::PageStyle::Story;
    fields.reject("\"grid\", \"rows\" or \"story\"", "style");
}

text::PageFile fileFrom(const QVariant &value, const QString &name)
{
    const Fields fields(value, name, {key("path"), key("width"), key("height")});
    return {fields.text("path"), QSize(fields.whole("width", 0), fields.whole("height", 0))};
}

text::PagePicture pictureFrom(const QVariant &value, const QString &name)
{
    const Fields fields(value, name, {key("caption"), key("files")});
    text::PagePicture picture{fields.text("caption"), {}};
    const QVariantList files = fields.list("files");
    for (qsizetype i = 0; i < files.size(); ++i)
        picture.files.append(fileFrom(files[i], QStringLiteral("%1.files[%2]").arg(name).arg(i)));
    return picture;
}

text::Page pageFrom(const QVariantMap &map)
{
    const Fields fields(map, key("page"),
                        {key("title"), key("text"), key("style"), key("language"), key("fromRight"), key("lightPaper"),
                         key("darkPaper"), key("accent"), key("download"), key("pictures")});
    text::Page page;
    page.title = fields.text("title");
    page.text = fields.text("text");
    page.style = styleFrom(fields);
    for (const auto &[name, place] : {std::pair("language", &page.language),
                                      {"lightPaper", &page.lightPaper},
                                      {"darkPaper", &page.darkPaper},
                                      {"accent", &page.accent}})
        if (const QString given = fields.text(name); !given.isEmpty())
            *place = given;
    page.isFromTheRight = fields.truth("fromRight", false);
    page.offersDownload = fields.truth("download", false);
    const QVariantList pictures = fields.list("pictures");
    for (qsizetype i = 0; i < pictures.size(); ++i)
        page.pictures.append(pictureFrom(pictures[i], QStringLiteral("page.pictures[%1]").arg(i)));
    return page;
}

} // namespace

QString PageService::standardTemplate() const
{
    return text::standardPageTemplate();
}

QString PageService::templateProblem(const QString &text) const
{
    const auto read = text::PageTemplate::read(text);
    return read ? QStringLiteral("") : read.error().message;
}

QStringList PageService::fields() const
{
    return text::PageTemplate::fields();
}

QVariantMap PageService::write(const QString &pageTemplate, const QVariantMap &page) const
{
    const auto html = text::writePage(pageTemplate, pageFrom(page));
    return {{key("html"), html.value_or(QStringLiteral(""))},
            {key("problem"), html ? QStringLiteral("") : html.error().message}};
}

QVariantList PageService::captionTokens() const
{
    const QStringList places = text::placeTokens();
    QVariantList tokens;
    for (const QString &name : text::captionTokens())
        tokens.append(QVariantMap{{key("name"), name},
                                  {key("words"), text::captionTokenWords(name)},
                                  {key("isPlace"), places.contains(name)}});
    return tokens;
}

QStringList PageService::captionProblems(const QString &pattern, bool placesMayBeTold) const
{
    return text::captionProblems(pattern, placesMayBeTold ? text::Places::MayBeTold : text::Places::AreKeptBack);
}

bool PageService::needsTexts(const QString &pattern) const
{
    return text::needsPictureTexts(pattern);
}

QVariantMap PageService::textsOf(const QString &path) const
{
    const auto properties =
        meta::openedWithSidecar(path).and_then([](const auto &source) { return source.properties(); });
    const auto fields = meta::readFields(path);
    return pageTextValues(properties.value_or(QVariantMap()),
                          fields.value_or(QVariantMap()).value(key("fields")).toMap());
}

QString PageService::caption(const QString &pattern, const QString &path, const QVariantMap &facts,
                             const QVariantMap &texts, int index) const
{
    text::TokenFacts known = text::tokenFactsFrom(facts, path);
    known.index = index;
    QHash<QString, QString> values;
    const QMap<QString, QString> given = Fields(texts, key("texts")).everyText();
    for (auto entry = given.begin(); entry != given.end(); ++entry)
        values.insert(entry.key(), entry.value());
    return text::captionFor(pattern, known, values);
}

bool PageService::isLanguage(const QString &code) const
{
    return text::isLanguageCode(code);
}

bool PageService::isFromRight(const QString &code) const
{
    return text::isWrittenFromTheRight(code);
}

QString PageService::fingerprint(const QString &path) const
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (QFileInfo(path).isSymLink() || !platform::openToRead(file) || !hash.addData(&file))
        return QStringLiteral("");
    return QString::fromLatin1(hash.result().toHex());
}

bool PageService::removeKnown(const QString &path, const QStringList &fingerprints) const
{
    const QString found = fingerprint(path);
    return !found.isEmpty() && fingerprints.contains(found) && QFile::remove(path);
}

QVariantMap pageTextValues(const QVariantMap &properties, const QVariantMap &fields)
{
    QVariantMap values;
    const QHash<QString, QString> texts = pageTexts(properties, fields);
    for (auto entry = texts.begin(); entry != texts.end(); ++entry)
        values.insert(entry.key(), entry.value());
    return values;
}

} // namespace jobs
