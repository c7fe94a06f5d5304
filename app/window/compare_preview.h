#pragma once

#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace window {

/**
 * The current picture and, beside it, what the settings make of it, on a dark surround.
 *
 * One decode at the size of the view serves both halves. A picture is never shown larger than its own pixels with
 * "fit"; with "fill" it covers its half. Decoding starts from the event loop when the picture or the size has settled.
 */
class ComparePreview : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool fill READ fill WRITE setFill)
    Q_PROPERTY(bool showsResult READ showsResult WRITE setShowsResult)

public:
    explicit ComparePreview(QWidget *parent = nullptr);

    bool fill() const { return m_fill; }
    void setFill(bool fill);
    bool showsResult() const { return m_showsResult; }
    void setShowsResult(bool shows);

    /** Shows the picture at @p path, or nothing where it is empty. */
    Q_INVOKABLE void showPicture(const QString &path);
    /** Reads the file again, because it was written. */
    Q_INVOKABLE void reload();
    /**
     * What the result half shows: the part @p left, @p top, @p width, @p height (0 to 1) of the upright original, at
     * @p pixelsWide x @p pixelsHigh. A size of 0 shows @p message instead.
     */
    Q_INVOKABLE void showResult(double left, double top, double width, double height, int pixelsWide, int pixelsHigh,
                                const QString &message);
    Q_INVOKABLE void setTitles(const QString &original, const QString &result);
    Q_INVOKABLE void setCaptions(const QString &original, const QString &result);

    QSize sizeHint() const override { return {640, 360}; }
    QSize minimumSizeHint() const override { return {240, 120}; }

Q_SIGNALS:
    void stepRequested(int rows);
    void largePreviewRequested();
    void closeRequested();
    /** A picture was decoded and is on the screen. */
    void pictureShown();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    struct Half
    {
        QRect area;
        QSize pixels;
        QRectF part; ///< of the original, 0 to 1
        QString title;
        QString caption;
        QString message;
    };

    void load();
    QRect originalArea() const;
    QRect resultArea() const;
    QSizeF shownSize(QSize pixels, const QRect &area) const;
    void paintHalf(QPainter &painter, const Half &half, const QColor &surround, QPixmap &scaled) const;
    void paintBadge(QPainter &painter, const QRect &area, Qt::Alignment place, const QString &text) const;
    QPixmap scaledPart(const QRectF &part, QSize devicePixels) const;
    void describe();

    QString m_path;
    QImage m_image;    ///< upright, at the size of the view or below
    QSize m_pixels;    ///< of the file
    QString m_problem; ///< in words, where the picture cannot be shown
    QTimer m_settled;
    bool m_fill = false;
    bool m_showsResult = true;
    QRectF m_part = {0, 0, 1, 1};
    QSize m_resultPixels;
    QString m_resultMessage;
    QString m_originalTitle;
    QString m_resultTitle;
    QString m_originalCaption;
    QString m_resultCaption;
    mutable QPixmap m_scaledOriginal;
    mutable QPixmap m_scaledResult;
};

} // namespace window
