#include "jobs/reading/picture_reader.h"

#include "image/convert.h"
#include "image/recipe/make.h"
#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "image/types/output_types.h"
#include "jobs/names.h"
#include "jobs/reading/field_copies.h"
#include "jobs/reading/preview_edits.h"
#include "jobs/reading/property_values.h"
#include "jobs/services/recipe_service.h"
#include "meta/sidecar_metadata.h"
#include "platform/file/lent_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/source/picture_facts.h"

#include <algorithm>

#include <sys/stat.h>

namespace jobs {
namespace {

using platform::Bitmap;
using platform::ImageSource;
using platform::LentFile;
using platform::Picture;
using platform::Result;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

ReadAnswer failed(const QString &problem)
{
    ReadAnswer answer;
    answer.message.problem =
        problem.isEmpty() ? image::sentence(QT_TRANSLATE_NOOP("recipe", "it cannot be read")) : problem;
    return answer;
}

/** The sentence of an operation that says no more than that it failed, where memory was refused to it. */
ReadAnswer failedWith(const platform::Error &error, QSize full = {})
{
    const QString refusal = platform::takeMemoryRefusal();
    ReadAnswer answer = failed(refusal.isEmpty() ? error.message : refusal);
    answer.message.values = {
        {key("lacksMemory"), !refusal.isEmpty()}, {key("width"), full.width()}, {key("height"), full.height()}};
    return answer;
}

ReadAnswer answerWith(const QVariantMap &values)
{
    ReadAnswer answer;
    answer.message.values = values;
    return answer;
}

ReadAnswer shown(const QImage &image, QSize full)
{
    ReadAnswer answer = answerWith({{key("width"), full.width()}, {key("height"), full.height()}});
    answer.image = platform::sharedImage(image);
    if (!answer.image)
        return failed(image::sentence(QT_TRANSLATE_NOOP("recipe", "not enough memory to show it")));
    answer.message.pixels = answer.image->size;
    answer.message.hasAlpha = answer.image->hasAlpha;
    return answer;
}

} // namespace

/** One Read, with its files. */
class PictureReader::Request
{
public:
    Request(const ReadMessage &read, std::vector<platform::Descriptor> files) : m_read(read)
    {
        for (size_t i = 0; i < files.size(); ++i)
            m_files.append(std::make_shared<const LentFile>(std::move(files[i]), read.paths[qsizetype(i)]));
    }

    const std::shared_ptr<const LentFile> &file() const { return m_files.first(); }
    /** Those that came along, from 1. */
    std::shared_ptr<const LentFile> other(int place) const { return m_files.value(place); }
    /** With the metadata of its sidecar, if the packet of that came along. */
    Result<ImageSource> source() const
    {
        return ImageSource::fromLent(file()).map([this](const ImageSource &source) {
            return meta::withSidecar(source, file(), value("packet").toByteArray());
        });
    }

    int whole(const char *name) const { return m_read.values.value(key(name)).toInt(); }
    QVariant value(const char *name) const { return m_read.values.value(key(name)); }

    /** The files that came along, for a recipe. */
    image::RecipeFiles recipeFiles() const
    {
        image::RecipeFiles files;
        files.folder = QStringLiteral("/");
        files.open = [this](const QString &path) -> Result<std::shared_ptr<const LentFile>> {
            for (qsizetype i = 1; i < m_files.size(); ++i)
                if (m_files[i]->name() == path)
                    return m_files[i];
            return platform::failure(platform::ErrorCode::NotFound, path);
        };
        return files;
    }

    Result<image::Recipe> recipe() const { return recipeFrom(value("recipe").toMap(), recipeFiles()); }

    /** What is known of the picture, for tokens. */
    text::TokenFacts facts() const
    {
        text::TokenFacts facts;
        facts.path = file()->name();
        facts.created = value("created").toString();
        facts.changed = value("changed").toString();
        facts.bytes = value("bytes").toLongLong();
        return withPictureFacts(
            facts, meta::withSidecar(platform::pictureFacts(file()), file(), value("packet").toByteArray()));
    }

    double scale() const { return value("scale").toDouble(); }

    QSize renditionOf(QSize pixels) const
    {
        if (scale() > 0)
            return scale() < 1 ? (QSizeF(pixels) * scale()).toSize().expandedTo({1, 1}) : pixels;
        return renditionSize(pixels, QSizeF(value("roomWidth").toDouble(), value("roomHeight").toDouble()),
                             value("covers").toBool());
    }

    /** All files as they are now, by which a result is known again. */
    std::vector<Kept> kept() const
    {
        std::vector<Kept> all;
        for (const auto &file : m_files)
            all.push_back(keptOf(file->descriptor()));
        return all;
    }

    /** What a result depends on, but for its files: from its own pixels on they are the same ones at every scale. */
    QVariantMap asked() const
    {
        QVariantMap values = m_read.values;
        for (const char *place : {"centerX", "centerY", "roomWidth", "roomHeight"})
            values.remove(key(place));
        values.insert(key("scale"), std::min(1.0, scale()));
        return values;
    }

    /** What is seen of a picture: all of it, or a part with the place of that. */
    ReadAnswer shownPart(const Bitmap &bitmap, QSize full) const
    {
        if (!(scale() > 0))
            return shown(bitmap.toScreenImage(), full);
        const QSizeF room(value("roomWidth").toDouble(), value("roomHeight").toDouble());
        const QPointF center(value("centerX").toDouble(), value("centerY").toDouble());
        const QRect part = partInView(bitmap.size(), room, center, scale());
        ReadAnswer answer = shown(platform::cut(bitmap, part).toScreenImage(), full);
        QVariantMap &values = answer.message.values;
        values.insert(key("left"), double(part.left()) / bitmap.width());
        values.insert(key("top"), double(part.top()) / bitmap.height());
        values.insert(key("right"), double(part.right() + 1) / bitmap.width());
        values.insert(key("bottom"), double(part.bottom() + 1) / bitmap.height());
        return answer;
    }

private:
    const ReadMessage &m_read;
    QList<std::shared_ptr<const LentFile>> m_files;
};

namespace {

QVariantMap statedIn(const platform::PictureFacts &facts)
{
    return {{key("taken"), facts.taken.toString(Qt::ISODate)},
            {key("camera"), facts.camera},
            {key("lens"), facts.lens},
            {key("statedWidth"), facts.pixels.width()},
            {key("statedHeight"), facts.pixels.height()},
            {key("statedType"), facts.typeIdentifier}};
}

ReadAnswer factsOf(const std::shared_ptr<const LentFile> &file, const QByteArray &packet)
{
    ReadAnswer answer = answerWith(statedIn(meta::withSidecar(platform::pictureFacts(file), file, packet)));
    const Result<ImageSource> source = ImageSource::fromLent(file);
    if (!source) {
        answer.message.problem = source.error().message;
        return answer;
    }
    QVariantMap &values = answer.message.values;
    values.insert(key("width"), source->uprightSize().width());
    values.insert(key("height"), source->uprightSize().height());
    values.insert(key("storedWidth"), source->storedSize().width());
    values.insert(key("storedHeight"), source->storedSize().height());
    values.insert(key("orientation"), source->orientation());
    values.insert(key("type"), source->typeIdentifier());
    values.insert(key("pointWidth"), source->pointSize().width());
    values.insert(key("pointHeight"), source->pointSize().height());
    return answer;
}

ReadAnswer propertiesOf(const ImageSource &source)
{
    const Result<QVariantMap> properties = source.properties();
    return properties ? answerWith({{key("properties"), *properties}}) : failed(properties.error().message);
}

ReadAnswer commentOf(const std::shared_ptr<const LentFile> &file)
{
    ReadAnswer answer = answerWith({{key("holds"), platform::canHoldUserComment(*file)},
                                    {key("pagesLost"), platform::pagesLostToUserComment(*file)}});
    const Result<platform::Metadata> metadata =
        ImageSource::fromLent(file).and_then([](const ImageSource &source) { return source.metadata(); });
    answer.message.values.insert(key("comment"), metadata ? metadata->userComment() : QString());
    answer.message.problem = metadata ? QString() : metadata.error().message;
    return answer;
}

ReadAnswer commentedCopy(const std::shared_ptr<const LentFile> &file, const std::shared_ptr<const LentFile> &copy,
                         const std::shared_ptr<const LentFile> &copyToRead, const QString &comment)
{
    if (!copy || !copyToRead)
        return failed({});
    const Result<bool> changes = platform::writeUserComment(file, copy->descriptor(), copyToRead, comment);
    return changes ? answerWith({{key("changes"), *changes}}) : failed(changes.error().message);
}

ReadAnswer profileOf(const ImageSource &source)
{
    const QByteArray profile = source.iccProfile();
    QStringList heldBy;
    for (const platform::Format &format : platform::formats()) {
        const auto written = platform::fileFormatForType(format.identifier);
        if (written && format.keeps.profile == platform::Kept::IfItFits && platform::holdsProfile(*written, profile))
            heldBy.append(format.identifier);
    }
    const QVariantMap properties = source.properties().value_or(QVariantMap());
    return answerWith({{key("name"), properties.value(key("ProfileName")).toString()}, {key("heldBy"), heldBy}});
}

ReadAnswer planned(const image::Recipe &recipe, const ImageSource &source)
{
    return answerWith(answerOf(image::planOf(recipe, source).first()));
}

ReadAnswer bytesOf(const image::Recipe &recipe, const ImageSource &source, const text::TokenFacts &facts)
{
    ReadAnswer answer = failed({});
    const image::FillText fill = [&facts](const QString &pattern, QSize size) {
        return watermarkFrom(pattern, facts, size);
    };
    const image::OutputPlan plan = image::planOf(recipe, source, fill).first();
    if (!plan.problem.isEmpty())
        return failed(plan.problem);
    image::makeOutputs(recipe, source, {plan}, fill, [&answer](int, const Result<image::MadeOutput> &made) {
        answer = made ? answerWith({{key("bytes"), double(made->bytes.size())}}) : failedWith(made.error());
    });
    return answer;
}

ReadAnswer bytesOfConversion(const ImageSource &source, const QString &identifier, const QString &qualityCode)
{
    for (const image::WrittenType &type : image::writtenTypes())
        if (identifier == type.identifier) {
            const double quality = qualityCode.isEmpty() ? 1 : image::qualityForCode(qualityCode);
            const Result<qint64> bytes = image::convertedBytes(source, type.type, quality);
            return bytes ? answerWith({{key("bytes"), double(*bytes)}}) : failedWith(bytes.error());
        }
    return failed({});
}

/** A stored thumbnail of that picture; none if it is of another one, of an older state of it, or too large. */
std::optional<Bitmap> keptThumbnail(const std::shared_ptr<const LentFile> &file, const QString &uri, double modified,
                                    int side)
{
    const Result<ImageSource> source = ImageSource::fromLent(file);
    if (!source || source->typeIdentifier() != QLatin1String("public.png") ||
        source->storedSize().boundedTo({side, side}) != source->storedSize())
        return std::nullopt;
    const QVariantMap stated = source->properties().value_or(QVariantMap()).value(key("{PNG}")).toMap();
    const bool isOfPicture = stated.value(key("Thumb::URI")).toString() == uri &&
                             stated.value(key("Thumb::MTime")).toString() == QString::number(modified, 'f', 0);
    const Result<Bitmap> bitmap = source->decode();
    return isOfPicture && bitmap ? std::optional(*bitmap) : std::nullopt;
}

} // namespace

PictureReader::Kept PictureReader::keptOf(int descriptor)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return {};
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

/** The picture, with what was decoded of it before. */
Result<Picture> PictureReader::pictureOf(const Request &request)
{
    const Kept now = keptOf(request.file()->descriptor());
    if (!m_picture.isNull() && now == m_kept)
        return m_picture;
    m_picture = {};
    return request.source().map([&](const ImageSource &source) {
        m_kept = now;
        m_picture = Picture::of(source);
        return m_picture;
    });
}

Result<Bitmap> PictureReader::baseOf(const Request &request, QSize *full)
{
    return pictureOf(request).and_then([&](const Picture &picture) {
        *full = picture.pixelSize();
        platform::takeMemoryRefusal();
        return picture.scaledTo(request.renditionOf(picture.pixelSize()));
    });
}

ReadAnswer PictureReader::sharedThumbnail(const Request &request)
{
    const int side = request.whole("side");
    if (request.other(1)) {
        const double modified = request.value("modified").toDouble();
        if (const auto kept = keptThumbnail(request.other(1), request.value("uri").toString(), modified, side)) {
            ReadAnswer answer = shown(kept->toScreenImage(), kept->size());
            answer.message.values.insert(key("isKept"), true);
            return answer;
        }
    }
    const Result<ImageSource> source = request.source();
    if (!source)
        return failedWith(source.error());
    const QSize pixels = source->uprightSize();
    const QSize size = renditionSize(pixels, QSizeF(side, side), false);
    const Result<Bitmap> bitmap = source->decodeScaled(size);
    return bitmap ? shown(bitmap->toScreenImage(), pixels) : failedWith(bitmap.error());
}

ReadAnswer PictureReader::thumbnail(const Request &request)
{
    if (request.whole("side") > 0)
        return sharedThumbnail(request);
    const QSize wanted = QSize(request.whole("width"), request.whole("height")).expandedTo({1, 1});
    const Result<ImageSource> source = request.source();
    if (!source)
        return failedWith(source.error());
    const QSize pixels = source->uprightSize();
    const QSize size = pixels.scaled(wanted, Qt::KeepAspectRatioByExpanding).expandedTo({1, 1});
    // A strip of film is not worth a thumbnail of thousands of pixels.
    constexpr int longest = 4;
    const Result<Bitmap> bitmap = source->decodeScaled(size.boundedTo(wanted * longest));
    if (!bitmap)
        return failedWith(bitmap.error());
    const QImage image = bitmap->toScreenImage();
    const QPoint corner((image.width() - wanted.width()) / 2, (image.height() - wanted.height()) / 2);
    return shown(image.copy(QRect(corner, wanted)), pixels);
}

ReadAnswer PictureReader::rendition(const Request &request)
{
    QSize full;
    const Result<Bitmap> base = baseOf(request, &full);
    return base ? request.shownPart(*base, full) : failedWith(base.error(), full);
}

/** The result at the size that is asked for, which is kept where a part of it is shown. */
Result<Rendition> PictureReader::resultOf(const Request &request)
{
    const bool isPart = request.scale() > 0;
    if (isPart && !m_result.bitmap.isNull() && m_resultAsked == request.asked() && m_resultFiles == request.kept())
        return m_result;
    m_result = {};
    m_found.reset();
    QSize full;
    const Result<Bitmap> base = baseOf(request, &full);
    if (!base)
        return tl::unexpected<platform::Error>(base.error());
    const Result<Edits> edits = editsFrom(request.value("edits").toList(), request.recipeFiles());
    const Result<Rendition> made = edits.and_then([&](const Edits &read) {
        return done(read, {*base, full}, request.facts());
    });
    if (!made)
        return made;
    m_found = foundPart(*edits, {*base, full});
    if (isPart) {
        m_resultAsked = request.asked();
        m_resultFiles = request.kept();
        m_result = *made;
    }
    return made;
}

ReadAnswer PictureReader::result(const Request &request)
{
    const Result<Rendition> made = resultOf(request);
    if (!made)
        return failedWith(made.error());
    ReadAnswer answer = request.shownPart(made->bitmap, made->full);
    if (m_found) {
        QVariantMap &values = answer.message.values;
        values.insert(key("partX"), m_found->x());
        values.insert(key("partY"), m_found->y());
        values.insert(key("partWidth"), m_found->width());
        values.insert(key("partHeight"), m_found->height());
    }
    return answer;
}

ReadAnswer PictureReader::answer(const ReadMessage &read, std::vector<platform::Descriptor> files)
{
    const Request request(read, std::move(files));
    const auto withSource = [&request](const auto &look) {
        const Result<ImageSource> source = request.source();
        return source ? look(*source) : failed(source.error().message);
    };
    const auto withRecipe = [&](const auto &look) {
        const Result<image::Recipe> recipe = request.recipe();
        return recipe ? withSource([&](const ImageSource &source) { return look(*recipe, source); })
                      : failed(recipe.error().message);
    };
    switch (read.what) {
    case Reading::Facts:
        return factsOf(request.file(), request.value("packet").toByteArray());
    case Reading::Thumbnail:
        return thumbnail(request);
    case Reading::Rendition:
        return rendition(request);
    case Reading::Result:
        return result(request);
    case Reading::Properties:
        return withSource(propertiesOf);
    case Reading::Comment:
        return commentOf(request.file());
    case Reading::CommentedCopy:
        return commentedCopy(request.file(), request.other(1), request.other(2), request.value("comment").toString());
    case Reading::Fields:
        return {fieldsOf(request.file(), read.values), {}};
    case Reading::FieldsCopy:
        return {fieldsCopy(request.file(), request.other(1), request.other(2), read.values), {}};
    case Reading::Values:
        return {propertyValues(request.file(), read.values), {}};
    case Reading::Profile:
        return withSource(profileOf);
    case Reading::Plan:
        return withRecipe(planned);
    case Reading::Bytes:
        if (!request.value("recipe").isValid())
            return withSource([&request](const ImageSource &source) {
                return bytesOfConversion(source, request.value("type").toString(), request.value("quality").toString());
            });
        return withRecipe([&request](const image::Recipe &recipe, const ImageSource &source) {
            return bytesOf(recipe, source, needsFacts(recipe) ? request.facts() : text::TokenFacts());
        });
    }
    return failed({});
}

platform::Message toMessage(ReadAnswer answer)
{
    platform::Message message = toMessage(answer.message);
    if (answer.image)
        message.files.push_back(std::move(answer.image->pixels));
    return message;
}

} // namespace jobs
