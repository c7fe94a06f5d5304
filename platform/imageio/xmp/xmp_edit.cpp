#include "platform/imageio/xmp/xmp_edit.h"

#include <QXmlStreamReader>

#include <algorithm>

// A packet is XML:
//
//     <?xpacket?> <x:xmpmeta> <rdf:RDF> <rdf:Description rdf:about="" xmlns:dc="..." dc:format="..."> <dc:title> ... </dc:title> ...
//
// Properties are the elements below a description, and its attributes.

namespace platform {
namespace {

const QLatin1String rdf("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
const QLatin1String xml("http://www.w3.org/XML/1998/namespace");

QString escaped(QStringView text)
{
    QString result = text.toString().toHtmlEscaped();
    // Otherwise a parser would turn them into spaces in an attribute.
    return result.replace(u'\n', QLatin1String("&#xA;")).replace(u'\t', QLatin1String("&#x9;"));
}

QString escapedCharacters(QStringView text)
{
    QString result = text.toString();
    return result.replace(u'&', QLatin1String("&amp;"))
        .replace(u'<', QLatin1String("&lt;"))
        .replace(u'>', QLatin1String("&gt;"));
}

QByteArray withoutPadding(const QByteArray &packet)
{
    qsizetype end = packet.size();
    while (end > 0 && packet.at(end - 1) == '\0')
        --end;
    return packet.left(end);
}

class Editor
{
public:
    Editor(const QByteArray &packet, const std::function<bool(const XmpName &)> &isKept, const QList<XmpValue> &values)
        : m_reader(withoutPadding(packet)), m_isKept(isKept), m_values(values)
    {
    }

    std::optional<QByteArray> edited();
    bool hasProperties() const { return m_properties > 0; }

private:
    bool isDescription() const;
    void startElement();
    void skip();
    void writeStart(bool isOfDescription);
    const XmpValue *valueOf(const XmpName &name) const;
    static XmpName nameOf(QStringView space, QStringView name) { return {space.toString(), name.toString()}; }

    QXmlStreamReader m_reader;
    const std::function<bool(const XmpName &)> &m_isKept;
    const QList<XmpValue> &m_values;
    QString m_out;
    int m_depth = 0;
    int m_described = -1;            ///< the depth of the current description
    const XmpValue *m_set = nullptr; ///< of the current property
    int m_properties = 0;
};

const XmpValue *Editor::valueOf(const XmpName &name) const
{
    const auto found = std::find_if(m_values.begin(), m_values.end(), [&](const XmpValue &value) {
        return value.property.space == name.space && value.property.name == name.name;
    });
    return found == m_values.end() ? nullptr : &*found;
}

bool Editor::isDescription() const
{
    return m_described < 0 && m_reader.namespaceUri() == rdf && m_reader.name() == QLatin1String("Description");
}

void Editor::writeStart(bool isOfDescription)
{
    m_out.append(u'<').append(m_reader.qualifiedName());
    for (const QXmlStreamNamespaceDeclaration &space : m_reader.namespaceDeclarations()) {
        m_out.append(QLatin1String(" xmlns"));
        if (!space.prefix().isEmpty())
            m_out.append(u':').append(space.prefix());
        m_out.append(QLatin1String("=\"")).append(escaped(space.namespaceUri())).append(u'"');
    }
    for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
        const XmpName name = nameOf(attribute.namespaceUri(), attribute.name());
        const bool isProperty = isOfDescription && name.space != rdf && name.space != xml;
        if (isProperty && !m_isKept(name))
            continue;
        m_properties += isProperty;
        const XmpValue *value = isProperty ? valueOf(name) : nullptr;
        m_out.append(u' ').append(attribute.qualifiedName()).append(QLatin1String("=\""));
        m_out.append(escaped(value ? QStringView(value->text) : attribute.value())).append(u'"');
    }
    m_out += u'>';
}

/** Skips an element with its contents; the reader is at its start. */
void Editor::skip()
{
    for (int depth = 1; depth > 0 && !m_reader.atEnd();) {
        const auto token = m_reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
    }
}

void Editor::startElement()
{
    const bool isProperty = m_described >= 0 && m_depth == m_described + 1;
    const XmpName name = nameOf(m_reader.namespaceUri(), m_reader.name());
    if (isProperty && !m_isKept(name)) {
        skip();
        return;
    }
    m_properties += isProperty;
    const bool opensDescription = isDescription();
    writeStart(opensDescription);
    if (opensDescription)
        m_described = m_depth;
    if (isProperty)
        m_set = valueOf(name);
    if (m_set)
        m_out += escapedCharacters(m_set->text);
    ++m_depth;
}

std::optional<QByteArray> Editor::edited()
{
    while (!m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            --m_depth;
            m_out.append(QLatin1String("</")).append(m_reader.qualifiedName()).append(u'>');
            if (m_depth == m_described)
                m_described = -1;
            if (m_described >= 0 && m_depth == m_described + 1)
                m_set = nullptr;
            break;
        case QXmlStreamReader::Characters:
            if (!m_set)
                m_out += escapedCharacters(m_reader.text());
            break;
        case QXmlStreamReader::ProcessingInstruction:
            m_out.append(QLatin1String("<?")).append(m_reader.processingInstructionTarget()).append(u' ');
            m_out.append(m_reader.processingInstructionData()).append(QLatin1String("?>"));
            break;
        case QXmlStreamReader::Comment:
            m_out.append(QLatin1String("<!--")).append(m_reader.text()).append(QLatin1String("-->"));
            break;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            return std::nullopt;
        default:
            break;
        }
    }
    return m_reader.hasError() ? std::nullopt : std::optional(m_out.toUtf8());
}

/** The contents of rdf:RDF, in the packet's own bytes; none if it has none. */
struct Inside
{
    qsizetype begin = -1;
    qsizetype end = -1;
};

Inside insideRdf(const QByteArray &packet)
{
    const qsizetype open = packet.indexOf("<rdf:RDF");
    const qsizetype begin = open < 0 ? -1 : packet.indexOf('>', open);
    const qsizetype end = packet.lastIndexOf("</rdf:RDF>");
    return begin >= 0 && end > begin ? Inside{begin + 1, end} : Inside();
}

/** The subject of a packet's first description. */
QString subjectOf(const QByteArray &packet)
{
    QXmlStreamReader reader(withoutPadding(packet));
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("Description"))
            return reader.attributes().value(rdf, QStringLiteral("about")).toString();
    return {};
}

} // namespace

std::optional<QByteArray> editedXmp(const QByteArray &packet, const std::function<bool(const XmpName &)> &isKept,
                                    const QList<XmpValue> &values)
{
    return Editor(packet, isKept, values).edited();
}

std::optional<QByteArray> joinedXmp(const QByteArray &packet, const QByteArray &other)
{
    const auto everything = [](const XmpName &) { return true; };
    const auto own = editedXmp(packet, everything);
    const auto more = editedXmp(other, everything);
    if (!own || !more)
        return std::nullopt;
    const Inside mine = insideRdf(*own);
    const Inside theirs = insideRdf(*more);
    if (mine.begin < 0 || theirs.begin < 0)
        return std::nullopt;
    QByteArray descriptions = more->mid(theirs.begin, theirs.end - theirs.begin);
    descriptions.replace("rdf:about=\"\"", "rdf:about=\"" + escaped(subjectOf(packet)).toUtf8() + '"');
    QByteArray joined = *own;
    return editedXmp(joined.insert(mine.end, descriptions), everything);
}

bool saysAnything(const QByteArray &packet)
{
    const std::function<bool(const XmpName &)> everything = [](const XmpName &) { return true; };
    const QList<XmpValue> none;
    Editor editor(packet, everything, none);
    return editor.edited() && editor.hasProperties();
}

} // namespace platform
