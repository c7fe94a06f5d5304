#include "app/window/manual/manual_pages.h"

#include "platform/file/atomic_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

namespace window {

namespace {

const QString ending = QStringLiteral(".md");

QString pathOf(const QString &folder, const QString &page)
{
    return folder + u'/' + page + ending;
}

QString textAt(const QString &path)
{
    return QString::fromUtf8(platform::readFile(path).value_or(QByteArray()));
}

int headingIn(const QString &text, const QString &anchor)
{
    QTextDocument document;
    document.setMarkdown(text);
    int number = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        if (anchorOfHeading(block.text()) == anchor)
            return number;
        ++number;
    }
    return -1;
}

} // namespace

QString anchorOfHeading(const QString &heading)
{
    QString anchor;
    for (const QChar each : heading.toLower())
        if (each.isLetterOrNumber() || each == u'-' || each == u'_')
            anchor += each;
        else if (each.isSpace())
            anchor += u'-';
    return anchor;
}

ManualPages::ManualPages(const QString &folder, const QString &language)
    : m_english(folder), m_own(folder + u'/' + language)
{
}

QString ManualPages::folderOf(const QString &page) const
{
    return QFileInfo::exists(pathOf(m_own, page)) ? m_own : m_english;
}

QString ManualPages::text(const QString &page) const
{
    return textAt(pathOf(folderOf(page), page));
}

QString ManualPages::plainText(const QString &page) const
{
    QTextDocument document;
    document.setMarkdown(text(page));
    return document.toPlainText();
}

QStringList ManualPages::names() const
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([\\w-]+)\\.md"));
    QStringList names = {QStringLiteral("index")};
    const QString first = text(names.constFirst());
    for (auto found = link.globalMatch(first); found.hasNext();)
        names.append(found.next().captured(1));
    for (const QString &file : QDir(m_english).entryList({u'*' + ending}, QDir::Files, QDir::Name))
        names.append(QFileInfo(file).completeBaseName());
    names.removeDuplicates();
    names.removeIf([this](const QString &name) { return !QFileInfo::exists(pathOf(folderOf(name), name)); });
    return names;
}

QString ManualPages::title(const QString &page) const
{
    static const QRegularExpression heading(QStringLiteral("^# +(.+?)\\s*$"), QRegularExpression::MultilineOption);
    const QRegularExpressionMatch found = heading.match(text(page));
    return found.hasMatch() ? found.captured(1) : page;
}

int ManualPages::headingOfLink(const QString &page, const QString &anchor) const
{
    const int own = headingIn(text(page), anchor);
    return own >= 0 ? own : headingInEnglish(page, anchor);
}

int ManualPages::headingInEnglish(const QString &page, const QString &anchor) const
{
    return headingIn(textAt(pathOf(m_english, page)), anchor);
}

QString ManualPages::picture(const QString &page, const QString &name) const
{
    const QFileInfo own(QDir::cleanPath(folderOf(page) + u'/' + name));
    return own.exists() ? own.filePath() : QDir::cleanPath(own.path() + QStringLiteral("/../") + own.fileName());
}

} // namespace window
