#pragma once

#include "app/preview/picture_ahead.h"
#include "app/preview/view_zoom.h"
#include "app/window/preview/crop_frame_editor.h"
#include "jobs/reading/read_errand.h"
#include "platform/imageio/source/picture.h"
#include "views/my2ndPhotoView.h"
#include "views/myMainPhotoView.h"

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVariantMap>
#include <QWidget>

#include <optional>

namespace window {

struct PreviewHost;

/**
 * The current picture and, beside it, what the settings make of it, on a dark surround.
 *
 * Workers make both at their size on the screen, once picture and size have settled; the previous ones stay visible for
 * a moment. One result is made at a time, then the one requested last. If the reading worker crashes, a sentence
 * replaces the picture. With "fit" a picture is never shown larger than its own pixels; with "fill" it covers its half.
 * With a zoom both are shown at that scale with the same point in the middle, and of what can be seen then workers make
 * the pixels that it has.
 */
class ComparePreview : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool fill READ fill WRITE setFill)
    Q_PROPERTY(bool showsResult READ showsResult WRITE setShowsResult)
    /** Original and result share one area; the result is shown if there is one. */
    Q_PROPERTY(bool single READ isSingle WRITE setSingle)
    /** Screen pixels per picture pixel, 1/32 to 8; 0: as large as the area allows. */
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    /** What is shown, for now, instead of a missing picture; empty for the usual sentence. */
    Q_PROPERTY(QString problem READ problem WRITE setProblem)
    /** The size that the file of the result will have, see resultEstimated(); -1 while it is not known. */
    Q_PROPERTY(double estimatedBytes READ estimatedBytes)

public:
    explicit ComparePreview(QWidget *parent = nullptr);
    ~ComparePreview() override;

    bool fill() const { return m_fill; }
    void setFill(bool fill);
    bool showsResult() const { return m_showsResult; }
    void setShowsResult(bool shows);

    bool isSingle() const { return m_isSingle; }
    void setSingle(bool isSingle);
    double zoom() const { return m_zoom.scale(); }
    void setZoom(double zoom);

    QString problem() const { return m_givenProblem; }
    void setProblem(const QString &problem);
    /** Why the picture cannot be shown, in words; empty if it can. */
    QString shownProblem() const { return m_problem; }

    double estimatedBytes() const { return m_estimatedBytes; }

    /** Shows the picture at @p path, or nothing if that is empty. */
    Q_INVOKABLE void showPicture(const QString &path);
    /** Pictures that will probably be shown next, the likeliest first: they are decoded beforehand. */
    Q_INVOKABLE void prepare(const QStringList &paths);
    /** Reads the file again, because it was written. */
    Q_INVOKABLE void reload();
    /**
     * What the result half shows.
     *
     * @param result  {edits: list, see preview_edits.h; width, height: pixels of the result; type: its type identifier;
     *                quality: quality code, "" where the action has none; recipe: that makes the file, without one it is a conversion;
     *                bytes: not looked at; message: shown instead where width is 0}. An edit that is not known is a TypeError.
     */
    Q_INVOKABLE void showResult(const QVariantMap &result);
    Q_INVOKABLE void setTitles(const QString &original, const QString &result);
    Q_INVOKABLE void setCaptions(const QString &original, const QString &result);
    /** A second line under the result: what it will not preserve. */
    Q_INVOKABLE void setNotes(const QString &notes);

    /**
     * A frame on the original that can be moved and sized: {x, y, width, height: pixels of the upright original; ratio:
     * width by height to keep, 0 for free; isFound: its position is reported by the worker that makes the result}; null
     * removes it. While there is one, the result is shown at the original's scale.
     */
    Q_INVOKABLE void setCropFrame(const QVariantMap &frame);
    /** A Picture that is drawn over the whole original, or null; visible while there is a crop frame. */
    Q_INVOKABLE void setOverlay(const platform::Picture &picture);

    /** From now on covers the parent, also when that changes its size. */
    void coverParent();

    QSize sizeHint() const override { return {640, 360}; }
    QSize minimumSizeHint() const override { return {240, 120}; }

Q_SIGNALS:
    void stepRequested(int rows);
    void largePreviewRequested();
    void closeRequested();
    /** A picture was shown. */
    void pictureShown();
    /** The visible part of it at a scale was shown with its full pixels. */
    void partShown();
    void zoomChanged();
    /** A result was made and shown. */
    void resultShown();
    /** The expected size of the result's file: that of one made by a worker, a while after the last change. */
    void resultEstimated(double bytes);
    /** The user moved or sized the crop frame; pixels of the upright original. */
    void cropFrameEdited(int x, int y, int width, int height);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /** What was requested last. */
    struct Wanted
    {
        QVariantList edits;
        QStringList files; ///< that the edits name
        QVariantMap recipe;
        QSize size;
        QString message;
        QString type;
        QString qualityCode;
    };

    /** Pixels of a part of a picture, with its place in the whole, from 0 to 1. */
    struct Part
    {
        QImage image;
        QRectF place = {0, 0, 1, 1};
    };
    /** A picture on this widget, and which area of the widget belongs to it. */
    struct ZoomedPlace
    {
        QRectF picture;
        QRect area;
    };
    /** The input of a result. */
    struct MadeOf
    {
        QString path;
        QVariantList edits;
        bool operator==(const MadeOf &other) const = default;
    };
    enum class Pane { Original, Result };

    static QString cannotBeShown(const QString &reason);
    static QString problemWith(const ShownPicture &picture);

    ShownRoom room() const;
    ShownRoom partRoom() const;
    ShownRoom resultRoom() const;
    void load();
    void takePicture(const ShownPicture &picture);
    void askForPart();
    void askForParts();
    void takePart(const ShownPicture &picture);
    void clearLate();
    bool wantsResult() const;
    bool hasResult() const;
    void askForResult();
    void takeResult(const jobs::ReadResult &result);
    QVariantMap factValues() const;
    void askForBytes();

    void setZoomAt(double scale, QPointF at, Pane pane);
    void stepZoom(int steps, QPointF at, Pane pane);
    void moveBy(QPointF distance, Pane pane);
    void lookElsewhere();
    bool takeZoomKey(const QKeyEvent &event);
    void flip(bool on);
    bool showsResultAlone() const;
    double fittedScale() const;
    double resultScale() const;
    QRectF framedPart() const;
    QPointF toResult(QPointF point) const;
    QPointF toOriginal(QPointF point) const;
    QRectF zoomedPlace(QSize pixels, double scale, QPointF center, const QRect &area) const;
    QRectF originalPlace() const;
    QRectF resultPlace() const;
    QRectF placeOf(Pane pane) const;
    QRect areaOf(Pane pane) const;
    Pane paneAt(QPointF point) const;
    QString titled(const QString &title, double scale) const;

    void fitViews();
    void render();
    void placeCropFrame();
    void takeFoundFrame(const jobs::ReadResult &result);
    void prepareOverlay();
    void showCropped();
    QRectF croppedRect() const;
    void paintCropped(QPainter &painter) const;
    void describe();
    QRect originalArea() const;
    QRect resultArea() const;
    QSizeF shownSize(QSize pixels, const QRect &area) const;
    QRectF pictureRect(QSize pixels, const QRect &area) const;
    void paintOriginal(QPainter &painter, const QRect &area) const;
    void paintFitted(QPainter &painter, const QRect &area) const;
    void paintResult(QPainter &painter) const;
    void paintZoomed(QPainter &painter, const ZoomedPlace &place, const QImage &whole, const Part &part) const;
    void paintMessage(QPainter &painter, const QRect &area, const QString &message) const;
    const QPixmap &scaledResult(QSize devicePixels) const;

    QString m_path;
    PictureAhead m_ahead;
    QString m_shownPath;              ///< of the picture shown, which may briefly be the previous one
    QSize m_full;                     ///< its upright pixels
    QPointer<const QScreen> m_screen; ///< whose colours the following images have
    QImage m_baseImage;               ///< the following image converted for the screen
    platform::Bitmap m_base;          ///< the picture at about its size on the screen
    platform::Picture m_picture;      ///< the same, one pixel of its own per point
    QString m_problem;                ///< in words, if the picture cannot be shown
    QString m_givenProblem;           ///< shown instead
    std::unique_ptr<PreviewHost> m_mainHost;
    std::unique_ptr<PreviewHost> m_cropHost;
    myMainPhotoView m_mainView;
    my2ndPhotoView m_cropView;
    CropFrameEditor *m_cropFrame;
    double m_frameRatio = 0;
    bool m_isFrameFound = false; ///< reported with the result by the worker that makes it
    platform::Picture m_overlay;
    QTimer m_settled;
    QTimer m_moved; ///< the part being viewed
    QTimer m_asked;
    bool m_fill = false;
    bool m_showsResult = true;
    bool m_isSingle = false;
    bool m_isFlipped = false; ///< the original is shown instead of the result
    ViewZoom m_zoom;
    Part m_part;           ///< of the original, at the scale
    QString m_partProblem; ///< in words, if it cannot be made
    std::optional<QPointF> m_heldAt;
    Pane m_heldPane = Pane::Original;
    int m_turned = 0; ///< of the wheel, less than a step
    Wanted m_wanted;
    jobs::Reader m_resultReader;
    jobs::Reader m_bytesReader;
    bool m_isResultStale = false; ///< another one was requested while one is being made
    QSize m_resultFull;
    QImage m_resultImage;
    Part m_resultPart; ///< of the result, at the scale
    MadeOf m_askedOf;
    MadeOf m_wholeOf; ///< m_resultImage
    QTimer m_late;    ///< what was shown before is dropped
    QTimer m_still;   ///< the settings have not changed for a while
    double m_estimatedBytes = -1;
    QString m_resultProblem;
    mutable QPixmap m_scaledResult;
    QString m_originalTitle;
    QString m_resultTitle;
    QString m_originalCaption;
    QString m_resultCaption;
    QString m_notes;
};

} // namespace window
