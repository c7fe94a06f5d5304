#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

namespace window {

/**
 * A sketch of a web page: how title, text and pictures are laid out in the style and colours of the settings, light
 * and, beside it, dark. No picture is read.
 */
class PageSketch : public QWidget
{
    Q_OBJECT
    /** "grid", "rows" or "story"; any other word is ignored. */
    Q_PROPERTY(QString style READ style WRITE setStyle)
    /** "#rrggbb"; see text::pageColors(). */
    Q_PROPERTY(QString lightPaper READ lightPaper WRITE setLightPaper)
    Q_PROPERTY(QString darkPaper READ darkPaper WRITE setDarkPaper)
    Q_PROPERTY(QString accent READ accent WRITE setAccent)
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(bool fromRight READ isFromRight WRITE setFromRight)
    Q_PROPERTY(bool captions READ hasCaptions WRITE setCaptions)

public:
    explicit PageSketch(QWidget *parent = nullptr);

    QString style() const { return m_style; }
    void setStyle(const QString &style);
    QString lightPaper() const { return m_lightPaper; }
    void setLightPaper(const QString &color) { change(m_lightPaper, color); }
    QString darkPaper() const { return m_darkPaper; }
    void setDarkPaper(const QString &color) { change(m_darkPaper, color); }
    QString accent() const { return m_accent; }
    void setAccent(const QString &color) { change(m_accent, color); }
    QString title() const { return m_title; }
    void setTitle(const QString &title) { change(m_title, title); }
    bool isFromRight() const { return m_isFromRight; }
    void setFromRight(bool on) { change(m_isFromRight, on); }
    bool hasCaptions() const { return m_hasCaptions; }
    void setCaptions(bool on) { change(m_hasCaptions, on); }

    /** Width by height of the first pictures; typical ones if none are given, or one is not above 0. */
    Q_INVOKABLE void setRatios(const QVariantList &ratios);

    /**
     * Where the pictures are in a page of that width, in pixels; see the style. The last row of "rows" is not filled.
     */
    static QList<QRectF> places(const QString &style, const QList<double> &ratios, double width, bool hasCaptions);

    QSize sizeHint() const override { return {300, 170}; }
    QSize minimumSizeHint() const override { return {160, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    template<typename T> void change(T &place, const T &value)
    {
        if (place != value) {
            place = value;
            update();
        }
    }
    void drawPage(QPainter &painter, const QRectF &page, const QString &paper) const;

    QString m_style = QStringLiteral("rows");
    QString m_lightPaper = QStringLiteral("#ffffff");
    QString m_darkPaper = QStringLiteral("#16181b");
    QString m_accent = QStringLiteral("#1f5fbf");
    QString m_title;
    bool m_isFromRight = false;
    bool m_hasCaptions = true;
    QList<double> m_ratios;
};

} // namespace window
