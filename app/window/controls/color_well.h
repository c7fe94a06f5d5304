#pragma once

#include <QColor>
#include <QPushButton>

namespace window {

/** A button that shows a colour and opens the system's colour chooser. */
class ColorWell : public QPushButton
{
    Q_OBJECT
    /** "#rrggbb"; any other text is ignored. */
    Q_PROPERTY(QString color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit ColorWell(QWidget *parent = nullptr);

    QString color() const { return m_color.name(); }
    void setColor(const QString &color);

    QSize sizeHint() const override { return {64, 30}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void colorChanged(const QString &color);
    /** As colorChanged, but only if a person chose the colour. */
    void chosen(const QString &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void openChooser();
    void take(const QColor &color);

    QColor m_color = Qt::white;
};

} // namespace window
