#pragma once

#include <QWidget>

namespace window {

/**
 * Nine positions in three rows, of which one or none is chosen: where a smaller thing is placed within a larger one.
 *
 * Places are numbered row by row from the top left, 0 to 8; -1 is none of them. One tab stop; the arrow keys move the choice.
 */
class PositionPad : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int selectedSegment READ selectedSegment WRITE setSelectedSegment NOTIFY selectionChanged)
    Q_PROPERTY(QStringList names READ names WRITE setNames)

public:
    explicit PositionPad(QWidget *parent = nullptr);

    int selectedSegment() const { return m_selected; }
    /** -1 for none; other numbers outside 0 to 8 are ignored. */
    void setSelectedSegment(int place);
    /** The names of the nine positions, for screen readers. */
    QStringList names() const { return m_names; }
    void setNames(const QStringList &names);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void selectionChanged(int place);
    /** As selectionChanged, but only if a person made the choice. */
    void chosen(int place);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect placeRect(int place) const;
    int placeAt(QPointF point) const;
    void hover(int place);
    void choose(int place);
    void describe();

    QStringList m_names;
    int m_selected = 4;
    int m_hovered = -1;
};

} // namespace window
