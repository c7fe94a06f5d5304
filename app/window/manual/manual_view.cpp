#include "app/window/manual/manual_view.h"

#include "app/window/look/theme.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QDialog>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int widestTextPx = 760;
constexpr int marginPx = 24;
/** Share of the screen for a picture that is shown enlarged. */
constexpr double largestShare = 0.9;
const QString pictureScheme = QStringLiteral("picture");

// A picture links to its enlarged view, by mouse and keyboard.
void makeLinkOfPicture(QTextDocument &document, const QTextBlock &block)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        if (!fragment.charFormat().isImageFormat() || fragment.charFormat().isAnchor())
            continue;
        QTextCursor picture(&document);
        picture.setPosition(fragment.position());
        picture.setPosition(fragment.position() + 1, QTextCursor::KeepAnchor);
        QTextCharFormat link;
        link.setAnchor(true);
        link.setAnchorHref(pictureScheme + u':' + fragment.charFormat().toImageFormat().name());
        link.setToolTip(ManualView::tr("Show large"));
        picture.mergeCharFormat(link);
        return; // the fragments are replaced
    }
}

// What Markdown leaves to the renderer: line and paragraph spacing, and colours of the theme.
void dress(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        const int level = format.headingLevel();
        // A picture is as high as it is.
        const bool isPicture = block.text().contains(QChar::ObjectReplacementCharacter);
        format.setLineHeight(isPicture ? 100 : 125, QTextBlockFormat::ProportionalHeight);
        format.setTopMargin(level == 1 ? 4 : level > 1 ? 18 : 0);
        format.setBottomMargin(block.textList() ? 4 : 9);
        cursor.setBlockFormat(format);
        cursor.select(QTextCursor::BlockUnderCursor);
        QTextCharFormat letters;
        letters.setForeground(Theme::color(QStringLiteral("text")));
        if (level > 0) {
            letters.setProperty(QTextFormat::FontSizeAdjustment, QVariant());
            letters.setFontPointSize(level == 1 ? 17 : level == 2 ? 13 : 11);
            letters.setFontWeight(QFont::DemiBold);
        }
        makeLinkOfPicture(document, block);
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isAnchor() || part.fragment().charFormat().isImageFormat())
                continue;
            QTextCursor some(&document);
            some.setPosition(part.fragment().position());
            some.setPosition(part.fragment().position() + part.fragment().length(), QTextCursor::KeepAnchor);
            some.mergeCharFormat(letters);
        }
    }
}

} // namespace

ManualView::ManualView(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTextBrowser::anchorClicked, this, &ManualView::follow);
}

void ManualView::setFolder(const QString &folder, const QString &language)
{
    m_pages = ManualPages(folder, language);
    m_visited.clear();
    m_at = -1;
}

QString ManualView::page() const
{
    return m_at < 0 ? QString() : m_visited.at(m_at).page;
}

QVariantList ManualView::pages() const
{
    QVariantList all;
    for (const QString &name : m_pages.names())
        all.append(QVariantMap{{QStringLiteral("name"), name}, {QStringLiteral("title"), m_pages.title(name)}});
    return all;
}

void ManualView::open(const QString &page, const QString &anchor)
{
    visit({page, anchor.isEmpty() ? -1 : m_pages.headingInEnglish(page, anchor)});
}

void ManualView::visit(const Place &place)
{
    if (m_at < 0 || m_visited.at(m_at).page != place.page || m_visited.at(m_at).heading != place.heading) {
        m_visited.resize(m_at + 1);
        m_visited.append(place);
        ++m_at;
    }
    show(m_visited.at(m_at));
}

void ManualView::goTo(qsizetype at)
{
    if (at < 0 || at >= m_visited.size())
        return;
    m_at = at;
    show(m_visited.at(at));
}

void ManualView::show(const Place &place)
{
    redraw();
    verticalScrollBar()->setValue(0);
    if (place.heading >= 0)
        scrollToHeading(place.heading);
    Q_EMIT pageShown(place.page);
}

void ManualView::redraw()
{
    if (m_at < 0)
        return;
    const int place = verticalScrollBar()->value();
    const QString text = m_pages.text(page());
    auto *drawn = new QTextDocument(this);
    drawn->setDefaultFont(font());
    drawn->setDocumentMargin(marginPx);
    m_drawnWidth = textWidth();
    drawn->setMarkdown(text.isEmpty() ? tr("This page of the manual is missing.") : text);
    dress(*drawn);
    setDocument(drawn);
    if (m_drawn)
        m_drawn->deleteLater();
    m_drawn = drawn;
    setLineWrapMode(FixedPixelWidth);
    setLineWrapColumnOrWidth(m_drawnWidth + 2 * marginPx);
    verticalScrollBar()->setValue(place);
}

int ManualView::textWidth() const
{
    return qBound(200, viewport()->width() - 2 * marginPx, widestTextPx);
}

void ManualView::scrollToHeading(int number)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || number-- > 0)
            continue;
        setTextCursor(QTextCursor(block));
        const QRectF place = document()->documentLayout()->blockBoundingRect(block);
        verticalScrollBar()->setValue(int(place.top()) - 8);
        return;
    }
}

void ManualView::follow(const QUrl &link)
{
    if (link.scheme() == QStringLiteral("http") || link.scheme() == QStringLiteral("https")) {
        QDesktopServices::openUrl(link);
        return;
    }
    if (link.scheme() == pictureScheme) {
        showLarge(link.path());
        return;
    }
    const QString file = QFileInfo(link.path()).completeBaseName();
    const QString target = file.isEmpty() ? page() : file;
    const QString anchor = link.fragment(QUrl::FullyDecoded);
    visit({target, anchor.isEmpty() ? -1 : m_pages.headingOfLink(target, anchor)});
}

/** The version of a picture for the current appearance. */
QImage ManualView::picture(const QString &name) const
{
    const QString path = m_pages.picture(page(), name);
    const QString dark = QString(path).replace(QStringLiteral("-light.png"), QStringLiteral("-dark.png"));
    return QImage(Theme::appearance() == Appearance::Dark && QFileInfo::exists(dark) ? dark : path);
}

QVariant ManualView::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::ImageResource || !name.isRelative())
        return {};
    const QImage found = picture(name.path());
    if (found.width() <= m_drawnWidth)
        return found;
    // The document would drop pixels of a picture wider than the text.
    const double ratio = devicePixelRatioF();
    QImage shown = found.scaledToWidth(qMin(found.width(), qRound(m_drawnWidth * ratio)), Qt::SmoothTransformation);
    shown.setDevicePixelRatio(double(shown.width()) / m_drawnWidth);
    return shown;
}

void ManualView::showLarge(const QString &name)
{
    const QImage found = picture(name);
    if (found.isNull())
        return;
    const double ratio = devicePixelRatioF();
    const QSize room = screen()->availableSize() * largestShare * ratio;
    QImage shown = found.width() <= room.width() && found.height() <= room.height()
                       ? found
                       : found.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    auto *window = new QDialog(this);
    window->setObjectName(QStringLiteral("manualPicture"));
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(tr("Picture of the manual"));
    auto *label = new QLabel(window);
    label->setPixmap(QPixmap::fromImage(shown));
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(label);
    window->open(); // Esc closes it, but not the manual behind it
}

bool ManualView::findFromHere(const QString &text)
{
    return !text.isEmpty() && find(text);
}

bool ManualView::findNext(const QString &text)
{
    if (text.isEmpty() || findFromHere(text))
        return !text.isEmpty();
    const QStringList all = m_pages.names();
    const qsizetype here = all.indexOf(page());
    for (qsizetype i = 1; i <= all.size(); ++i) {
        const QString &name = all.at((here + i) % all.size());
        if (!m_pages.plainText(name).contains(text, Qt::CaseInsensitive))
            continue;
        if (name != page())
            open(name, QString());
        moveCursor(QTextCursor::Start);
        if (findFromHere(text))
            return true;
    }
    return false;
}

void ManualView::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    if (m_at >= 0 && textWidth() != m_drawnWidth)
        redraw();
}

// An open manual does not keep the program running.
void ManualView::showEvent(QShowEvent *event)
{
    window()->setAttribute(Qt::WA_QuitOnClose, false);
    QTextBrowser::showEvent(event);
}

void ManualView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::BackButton)
        goBack();
    else if (event->button() == Qt::ForwardButton)
        goForward();
    else
        QTextBrowser::mousePressEvent(event);
}

} // namespace window
