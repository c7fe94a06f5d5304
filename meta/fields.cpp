#include "meta/fields.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace meta {
namespace {

using platform::XmpChange;
using platform::XmpForm;
using Directory = platform::TagChange::Directory;

struct Space
{
    const char *prefix;
    const char *address;
};

constexpr Space dc{"dc", "http://purl.org/dc/elements/1.1/"};
constexpr Space photoshop{"photoshop", "http://ns.adobe.com/photoshop/1.0/"};
constexpr Space core{"Iptc4xmpCore", "http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/"};
constexpr Space rights{"xmpRights", "http://ns.adobe.com/xap/1.0/rights/"};
constexpr Space xmp{"xmp", "http://ns.adobe.com/xap/1.0/"};

XmpChange property(const Space &space, const char *name, XmpForm form = XmpForm::Text, const char *member = "")
{
    return {{QString::fromLatin1(space.address), QString::fromLatin1(name)},
            QString::fromLatin1(space.prefix),
            form,
            {},
            QString::fromLatin1(member)};
}

XmpChange contact(const char *member)
{
    return property(core, "CreatorContactInfo", XmpForm::Member, member);
}

QList<Field> table()
{
    constexpr auto none = std::nullopt;
    const auto first = [](quint16 tag) { return ExifPlace{Directory::First, tag}; };
    const auto name = [](const char *text) { return QString::fromLatin1(text); };
    using K = FieldKind;
    return {
        {name("title"), K::Line, none, IptcPlace{5, 64}, property(dc, "title", XmpForm::Alternatives)},
        {name("headline"), K::Line, none, IptcPlace{105, 256}, property(photoshop, "Headline")},
        {name("caption"), K::Text, first(0x010e), IptcPlace{120, 2000},
         property(dc, "description", XmpForm::Alternatives)},
        {name("keywords"), K::Words, none, IptcPlace{25, 64}, property(dc, "subject", XmpForm::Bag)},
        {name("creator"), K::Names, first(0x013b), IptcPlace{80, 32}, property(dc, "creator", XmpForm::Sequence)},
        {name("jobTitle"), K::Line, none, IptcPlace{85, 32}, property(photoshop, "AuthorsPosition")},
        {name("contactAddress"), K::Text, none, none, contact("CiAdrExtadr")},
        {name("contactPhone"), K::Line, none, none, contact("CiTelWork")},
        {name("contactEmail"), K::Line, none, none, contact("CiEmailWork")},
        {name("contactWeb"), K::Line, none, none, contact("CiUrlWork")},
        {name("copyright"), K::Line, first(0x8298), IptcPlace{116, 128}, property(dc, "rights", XmpForm::Alternatives)},
        {name("usageTerms"), K::Text, none, none, property(rights, "UsageTerms", XmpForm::Alternatives)},
        {name("credit"), K::Line, none, IptcPlace{110, 32}, property(photoshop, "Credit")},
        {name("source"), K::Line, none, IptcPlace{115, 32}, property(photoshop, "Source")},
        {name("instructions"), K::Text, none, IptcPlace{40, 256}, property(photoshop, "Instructions")},
        {name("jobIdentifier"), K::Line, none, IptcPlace{103, 32}, property(photoshop, "TransmissionReference")},
        {name("sublocation"), K::Line, none, IptcPlace{92, 32}, property(core, "Location")},
        {name("city"), K::Line, none, IptcPlace{90, 32}, property(photoshop, "City")},
        {name("state"), K::Line, none, IptcPlace{95, 32}, property(photoshop, "State")},
        {name("country"), K::Line, none, IptcPlace{101, 64}, property(photoshop, "Country")},
        {name("countryCode"), K::Line, none, IptcPlace{100, 3}, property(core, "CountryCode")},
        {name("dateTaken"), K::Date, ExifPlace{Directory::Exif, 0x9003}, IptcPlace{55, 8},
         property(photoshop, "DateCreated")},
        {name("rating"), K::Rating, none, none, property(xmp, "Rating")},
        {name("label"), K::Line, none, none, property(xmp, "Label")},
    };
}

} // namespace

const QList<Field> &fields()
{
    static const QList<Field> all = table();
    return all;
}

const Field *fieldNamed(const QString &name)
{
    const auto found =
        std::find_if(fields().begin(), fields().end(), [&](const Field &field) { return field.name == name; });
    return found == fields().end() ? nullptr : &*found;
}

QString cutToBytes(const QString &text, int mostBytes)
{
    if (text.toUtf8().size() <= mostBytes)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary(); next >= 0; next = finder.toNextBoundary()) {
        if (text.left(next).toUtf8().size() > mostBytes)
            break;
        end = next;
    }
    return text.left(end);
}

} // namespace meta
