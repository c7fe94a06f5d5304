#include "text/page/page_template.h"

#include <QCoreApplication>

#include <array>

namespace text {

namespace {

using platform::ErrorCode;

QString sentence(const char *text)
{
    return QCoreApplication::translate("text::PageTemplate", text);
}

constexpr std::array pageFields = {
    "language",     "direction",    "title",     "text",       "style",        "grid",
    "rows",         "story",        "count",     "lightPaper", "lightInk",     "lightSoft",
    "lightAccent",  "darkPaper",    "darkInk",   "darkSoft",   "darkAccent",   "downloads",
    "wordLanguage", "wordPictures", "wordClose", "wordNext",   "wordPrevious", "wordDownload",
};
constexpr std::array pictureFields = {
    "pictureNumber",      "pictureText",   "pictureCaption", "pictureFile",     "pictureFiles",
    "pictureWidth",       "pictureHeight", "pictureRatio",   "pictureLarge",    "pictureLargeWidth",
    "pictureLargeHeight", "pictureWait",   "pictureNext",    "picturePrevious", "pictureWords",
};
const QString pictures = QStringLiteral("pictures");

bool isAmong(const auto &names, const QString &name)
{
    return std::any_of(names.begin(), names.end(), [&](const char *each) { return name == QLatin1String(each); });
}

bool isPictureField(const QString &name)
{
    return isAmong(pictureFields, name);
}

/**
 * Colours and numbers may appear where a browser does not parse HTML; a user's text could end that context, or mean
 * something else there.
 */
bool isFreeOfTexts(const QString &name)
{
    return name.startsWith(QStringLiteral("light")) || name.startsWith(QStringLiteral("dark")) ||
           name == QStringLiteral("count");
}

QString valueOf(const QString &name, const PageValues &page, const PageValues *picture)
{
    const PageValues &values = picture != nullptr && isPictureField(name) ? *picture : page;
    return values.markup.contains(name) ? values.markup.value(name) : escapedForPage(values.texts.value(name));
}

} // namespace

/** Parses a template; tracks the line, what is open, and whether inside a script or a style sheet. */
class PageTemplate::Reader
{
public:
    explicit Reader(const QString &text) : m_text(text) {}

    platform::Result<std::vector<Part>> read()
    {
        m_open.push_back({});
        while (m_problem.isEmpty() && m_at < m_text.size())
            step();
        if (m_problem.isEmpty() && m_open.size() > 1)
            refuse(m_open.back().line,
                   sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{#%1}} is not closed")).arg(m_open.back().text));
        if (!m_problem.isEmpty())
            return platform::failure(ErrorCode::InvalidValue, m_problem);
        return std::move(m_open.front().inner);
    }

private:
    void step()
    {
        const qsizetype begin = m_text.indexOf(QStringLiteral("{{"), m_at);
        takeText(m_text.mid(m_at, begin < 0 ? -1 : begin - m_at));
        if (begin < 0) {
            m_at = m_text.size();
            return;
        }
        const qsizetype end = m_text.indexOf(QStringLiteral("}}"), begin);
        if (end < 0) {
            refuse(m_line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "a field is not closed")));
            return;
        }
        takeField(m_text.mid(begin + 2, end - begin - 2));
        m_at = end + 2;
    }

    void takeText(const QString &text)
    {
        if (!text.isEmpty())
            m_open.back().inner.push_back({Kind::Text, text, m_line, {}});
        m_line += int(text.count(u'\n'));
        follow(text);
    }

    // What begins or ends last in this text decides.
    void follow(const QString &text)
    {
        for (const char *name : {"script", "style"}) {
            const QString word = QString::fromLatin1(name);
            const qsizetype begun = text.lastIndexOf(u'<' + word, -1, Qt::CaseInsensitive);
            const qsizetype ended = text.lastIndexOf(QStringLiteral("</") + word, -1, Qt::CaseInsensitive);
            if (begun > ended)
                m_element = word;
            else if (ended >= 0 && m_element == word)
                m_element.clear();
        }
    }

    void takeField(const QString &written)
    {
        const bool isOpening = written.startsWith(u'#') || written.startsWith(u'^');
        const bool isClosing = written.startsWith(u'/');
        const QString name = isOpening || isClosing ? written.mid(1) : written;
        const int line = m_line;
        m_line += int(written.count(u'\n'));
        if (!isKnown(name))
            refuse(line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "there is no field {{%1}}"))
                             .arg(written.left(mostShown)));
        else if (isPictureField(name) && m_depth == 0)
            refuse(
                line,
                sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{%1}} must be inside {{#pictures}}")).arg(written));
        else if (isClosing)
            close(name, line);
        else if (isOpening)
            open(written.startsWith(u'^') ? Kind::Unless : Kind::Where, name, line);
        else if (name == pictures)
            refuse(line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{pictures}} must be {{#pictures}}")));
        else if (!m_element.isEmpty() && !isFreeOfTexts(name))
            refuse(line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{%1}} cannot be used in a <%2>"))
                             .arg(name, m_element));
        else
            m_open.back().inner.push_back({Kind::Field, name, line, {}});
    }

    void open(Kind kind, const QString &name, int line)
    {
        const bool isList = name == pictures;
        if (isList && (kind == Kind::Unless || m_depth > 0)) {
            refuse(line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{#pictures}} cannot be used here")));
            return;
        }
        m_depth += isList ? 1 : 0;
        m_open.push_back({isList ? Kind::Pictures : kind, name, line, {}});
    }

    void close(const QString &name, int line)
    {
        if (m_open.size() == 1 || m_open.back().text != name) {
            refuse(line, sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "{{/%1}} closes nothing")).arg(name));
            return;
        }
        Part part = std::move(m_open.back());
        m_open.pop_back();
        m_depth -= part.kind == Kind::Pictures ? 1 : 0;
        m_open.back().inner.push_back(std::move(part));
    }

    static bool isKnown(const QString &name)
    {
        return name == pictures || isAmong(pageFields, name) || isPictureField(name);
    }

    void refuse(int line, const QString &problem)
    {
        if (m_problem.isEmpty())
            m_problem =
                sentence(QT_TRANSLATE_NOOP("text::PageTemplate", "line %1: %2")).arg(QString::number(line), problem);
    }

    static constexpr int mostShown = 40;
    const QString &m_text;
    qsizetype m_at = 0;
    int m_line = 1;
    int m_depth = 0;
    QString m_element;
    QString m_problem;
    std::vector<Part> m_open;
};

platform::Result<PageTemplate> PageTemplate::read(const QString &text)
{
    auto parts = Reader(text).read();
    if (!parts)
        return tl::unexpected(parts.error());
    PageTemplate made;
    made.m_parts = std::move(*parts);
    return made;
}

QString PageTemplate::fill(const PageValues &page) const
{
    QString html;
    fillInto(html, m_parts, page, nullptr);
    return html;
}

QStringList PageTemplate::fields()
{
    QStringList names;
    for (const char *name : pageFields)
        names.append(QString::fromLatin1(name));
    names.append(pictures);
    for (const char *name : pictureFields)
        names.append(QString::fromLatin1(name));
    return names;
}

void PageTemplate::fillInto(QString &html, const std::vector<Part> &parts, const PageValues &page,
                            const PageValues *picture)
{
    for (const Part &part : parts) {
        switch (part.kind) {
        case Kind::Text:
            html += part.text;
            break;
        case Kind::Field:
            html += valueOf(part.text, page, picture);
            break;
        case Kind::Where:
        case Kind::Unless:
            if (valueOf(part.text, page, picture).isEmpty() == (part.kind == Kind::Unless))
                fillInto(html, part.inner, page, picture);
            break;
        case Kind::Pictures:
            for (const PageValues &each : page.pictures)
                fillInto(html, part.inner, page, &each);
            break;
        }
    }
}

QString escapedForPage(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size() + text.size() / 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            escaped += c;
            escaped += text[++i];
        } else if (c == u'&') {
            escaped += QStringLiteral("&amp;");
        } else if (c == u'<') {
            escaped += QStringLiteral("&lt;");
        } else if (c == u'>') {
            escaped += QStringLiteral("&gt;");
        } else if (c == u'"') {
            escaped += QStringLiteral("&quot;");
        } else if (c == u'\'') {
            escaped += QStringLiteral("&#39;");
        } else if (c.isSurrogate() || (c.unicode() < 0x20 && c != u'\n' && c != u'\t') ||
                   (c.unicode() >= 0x7f && c.unicode() < 0xa0) || c.unicode() >= 0xfffe) {
            escaped += c.isSurrogate() ? QStringLiteral("\uFFFD") : QString();
        } else {
            escaped += c;
        }
    }
    return escaped;
}

} // namespace text
