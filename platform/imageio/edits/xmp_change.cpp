#include "platform/imageio/edits/xmp_change.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace platform {
namespace {

const QLatin1String rdf("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
const QLatin1String xml("http://www.w3.org/XML/1998/namespace");
const QString everybody = QStringLiteral("x-default");

QByteArray withoutPadding(const QByteArray &packet)
{
    qsizetype end = packet.size();
    while (end > 0 && packet.at(end - 1) == '\0')
        --end;
    return packet.left(end);
}

/** Reads the texts of one property, an element whose start was read. */
QList<XmpItem> itemsOf(QXmlStreamReader &reader)
{
    QList<XmpItem> items;
    QString text;
    QString language;
    QString member;
    bool isList = false;
    const auto takeAttributes = [&] {
        for (const QXmlStreamAttribute &each : reader.attributes())
            if (each.namespaceUri() != rdf && each.namespaceUri() != xml)
                items.append({each.value().toString(), {}, each.name().toString()});
    };
    takeAttributes();
    for (int depth = 1; depth > 0 && !reader.atEnd();) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::Characters) {
            text += reader.text();
        } else if (token == QXmlStreamReader::StartElement) {
            ++depth;
            const bool isRdf = reader.namespaceUri() == rdf;
            isList = isList || (isRdf && reader.name() == QLatin1String("li"));
            if (isRdf && reader.name() == QLatin1String("Description"))
                takeAttributes();
            language = reader.attributes().value(xml, QLatin1String("lang")).toString();
            member = isRdf ? QString() : reader.name().toString();
            text.clear();
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
            const bool isItem = reader.namespaceUri() == rdf && reader.name() == QLatin1String("li");
            if (isItem || (depth > 0 && !isList && !member.isEmpty()))
                items.append({text, language, member});
            else if (depth == 0 && items.isEmpty() && !isList)
                items.append({text.trimmed().isEmpty() ? QString() : text, {}, {}});
            member.clear();
            text.clear();
        }
    }
    return items;
}

QString escaped(const QString &text)
{
    QString kept;
    for (const QChar letter : text) // XML allows no other control characters
        if (letter >= u' ' || letter == u'\n' || letter == u'\t')
            kept += letter;
    return kept.toHtmlEscaped().replace(QLatin1String("&quot;"), QLatin1String("\""));
}

QString list(const char *kind, const QStringList &texts)
{
    const QString name = QString::fromLatin1(kind);
    QString items;
    for (const QString &text : texts)
        items += QStringLiteral("<rdf:li>%1</rdf:li>").arg(escaped(text));
    return QStringLiteral("<rdf:%1>%2</rdf:%1>").arg(name, items);
}

/** Keeps the alternatives of other languages that differ from the default. */
QString alternatives(const QString &text, const QList<XmpItem> &old)
{
    const auto first =
        std::find_if(old.begin(), old.end(), [](const XmpItem &item) { return item.language == everybody; });
    const QString before = first != old.end() ? first->text : old.isEmpty() ? QString() : old.first().text;
    QString items = QStringLiteral("<rdf:li xml:lang=\"x-default\">%1</rdf:li>").arg(escaped(text));
    for (const XmpItem &item : old)
        if (!item.language.isEmpty() && item.language != everybody && item.text != before)
            items += QStringLiteral("<rdf:li xml:lang=\"%1\">%2</rdf:li>")
                         .arg(item.language.toHtmlEscaped(), escaped(item.text));
    return QStringLiteral("<rdf:Alt>%1</rdf:Alt>").arg(items);
}

/** The members of a structure that stay, and those that are set. */
QString structure(const QString &prefix, const QList<XmpChange> &members, const QList<XmpItem> &old)
{
    QString result;
    const auto isChanged = [&](const QString &name) {
        return std::any_of(members.begin(), members.end(), [&](const XmpChange &each) { return each.member == name; });
    };
    const auto add = [&](const QString &name, const QString &text) {
        result += QStringLiteral("<%1:%2>%3</%1:%2>").arg(prefix, name, escaped(text));
    };
    for (const XmpItem &item : old)
        if (!item.member.isEmpty() && !isChanged(item.member))
            add(item.member, item.text);
    for (const XmpChange &change : members)
        if (!change.texts.isEmpty())
            add(change.member, change.texts.first());
    return result;
}

bool isSame(const XmpName &a, const XmpName &b)
{
    return a.space == b.space && a.name == b.name;
}

class PropertyWriter
{
public:
    explicit PropertyWriter(const QByteArray &packet) : m_packet(packet) {}

    void add(const XmpChange &change)
    {
        if (change.texts.isEmpty())
            return;
        switch (change.form) {
        case XmpForm::Text:
            return write(change, escaped(change.texts.first()));
        case XmpForm::Alternatives:
            return write(change, alternatives(change.texts.first(), xmpItems(m_packet, change.property)));
        case XmpForm::Bag:
            return write(change, list("Bag", change.texts));
        case XmpForm::Sequence:
            return write(change, list("Seq", change.texts));
        case XmpForm::Member:
            return;
        }
    }
    void addStructure(const QList<XmpChange> &members)
    {
        const XmpChange &first = members.first();
        const QString content = structure(first.prefix, members, xmpItems(m_packet, first.property));
        if (!content.isEmpty())
            write(first, content, QStringLiteral(" rdf:parseType=\"Resource\""));
    }
    /** One description with all of them; empty if there are none. */
    QByteArray description(const QString &about) const
    {
        if (m_content.isEmpty())
            return {};
        QString spaces;
        for (auto each = m_spaces.begin(); each != m_spaces.end(); ++each)
            spaces += QStringLiteral(" xmlns:%1=\"%2\"").arg(each.key(), each.value());
        return QStringLiteral("<rdf:Description xmlns:rdf=\"%1\" rdf:about=\"%2\"%3>%4</rdf:Description>")
            .arg(rdf, about.toHtmlEscaped(), spaces, m_content)
            .toUtf8();
    }

private:
    void write(const XmpChange &change, const QString &content, const QString &attributes = {})
    {
        m_spaces.insert(change.prefix, change.property.space);
        m_content +=
            QStringLiteral("<%1:%2%3>%4</%1:%2>").arg(change.prefix, change.property.name, attributes, content);
    }

    QByteArray m_packet;
    QMap<QString, QString> m_spaces;
    QString m_content;
};

/** Where the element of all descriptions ends, and the subject of the first. */
struct Outline
{
    QByteArray rdfName;
    QString about;
    bool isSound = false;
};

Outline outlineOf(const QByteArray &packet)
{
    Outline outline;
    QXmlStreamReader reader(withoutPadding(packet));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.namespaceUri() != rdf)
            continue;
        if (reader.name() == QLatin1String("RDF"))
            outline.rdfName = reader.qualifiedName().toUtf8();
        else if (outline.about.isNull() && reader.name() == QLatin1String("Description"))
            outline.about = reader.attributes().value(rdf, QLatin1String("about")).toString();
    }
    outline.isSound = !reader.hasError() && !outline.rdfName.isEmpty();
    return outline;
}

/** Empty descriptions would accumulate with every edit. */
QByteArray withoutEmptyDescriptions(const QByteArray &packet)
{
    static const QRegularExpression empty(QStringLiteral(
        "<(\\w+):Description(\\s+xmlns:[\\w.-]+=\"[^\"]*\"|\\s+\\1:about=\"[^\"]*\")*\\s*>\\s*</\\1:Description>\\s?"));
    return QString::fromUtf8(packet).remove(empty).toUtf8();
}

QByteArray emptyPacket()
{
    return "<?xpacket begin=\"\xef\xbb\xbf\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>";
}

/** Those that are to be written: changes that apply only to existing properties are checked. */
QList<XmpChange> wantedIn(const QByteArray &packet, const QList<XmpChange> &changes)
{
    QList<XmpChange> wanted;
    for (const XmpChange &change : changes)
        if (!change.onlyIfThere || !xmpItems(packet, change.property).isEmpty())
            wanted.append(change);
    return wanted;
}

QByteArray describing(const QByteArray &packet, const QList<XmpChange> &changes, const QString &about)
{
    PropertyWriter writer(packet);
    QList<XmpName> structures;
    for (const XmpChange &change : changes) {
        writer.add(change);
        const bool isNew = std::none_of(structures.begin(), structures.end(),
                                        [&](const XmpName &each) { return isSame(each, change.property); });
        if (change.form != XmpForm::Member || !isNew)
            continue;
        structures.append(change.property);
        QList<XmpChange> members;
        std::copy_if(changes.begin(), changes.end(), std::back_inserter(members),
                     [&](const XmpChange &each) { return isSame(each.property, change.property); });
        writer.addStructure(members);
    }
    return writer.description(about);
}

} // namespace

QList<XmpItem> xmpItems(const QByteArray &packet, const XmpName &property)
{
    QXmlStreamReader reader(withoutPadding(packet));
    int depth = 0;
    int described = -1;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement) {
            --depth;
            described = depth == described ? -1 : described;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        const bool isProperty = described >= 0 && depth == described + 1;
        if (isProperty && reader.namespaceUri() == property.space && reader.name() == property.name)
            return itemsOf(reader);
        if (described < 0 && reader.namespaceUri() == rdf && reader.name() == QLatin1String("Description")) {
            described = depth;
            if (reader.attributes().hasAttribute(property.space, property.name))
                return {{reader.attributes().value(property.space, property.name).toString()}};
        }
        ++depth;
    }
    return {};
}

QStringList xmpTexts(const QByteArray &packet, const XmpChange &property)
{
    const QList<XmpItem> items = xmpItems(packet, property.property);
    QStringList texts;
    for (const XmpItem &item : items)
        if (property.form != XmpForm::Member || item.member == property.member)
            texts += item.text;
    if (property.form == XmpForm::Alternatives)
        for (const XmpItem &item : items)
            if (item.language == everybody)
                return {item.text};
    const bool isOne = property.form != XmpForm::Bag && property.form != XmpForm::Sequence;
    return isOne ? texts.mid(0, 1) : texts;
}

std::optional<QByteArray> changedXmp(const QByteArray &packet, const MetadataChange &change)
{
    const QList<XmpChange> wanted = wantedIn(packet, change.xmp);
    const bool sets =
        std::any_of(wanted.begin(), wanted.end(), [](const XmpChange &each) { return !each.texts.isEmpty(); });
    if (packet.isEmpty() && !sets)
        return packet;
    const QByteArray old = packet.isEmpty() ? emptyPacket() : packet;
    const Outline outline = outlineOf(old);
    if (!outline.isSound)
        return std::nullopt;
    bool isTakenOut = false;
    const auto kept = editedXmp(old, [&](const XmpName &name) {
        const bool isChanged = std::any_of(wanted.begin(), wanted.end(),
                                           [&](const XmpChange &each) { return isSame(each.property, name); });
        const bool isKept = !isChanged && !(change.dropsXmp && change.dropsXmp(name));
        isTakenOut = isTakenOut || !isKept;
        return isKept;
    });
    if (!kept)
        return std::nullopt;
    if (!isTakenOut && !sets)
        return packet;
    QByteArray result = withoutEmptyDescriptions(*kept);
    const qsizetype end = result.lastIndexOf("</" + outline.rdfName + '>');
    if (end < 0)
        return std::nullopt;
    result.insert(end, describing(packet, wanted, outline.about));
    return outlineOf(result).isSound ? std::optional(result) : std::nullopt;
}

} // namespace platform
