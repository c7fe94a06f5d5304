#pragma once

#include <QStringList>
#include <QWidget>

namespace window {

/**
 * A row of choices of which exactly one is on, as wide as its widest text times their number.
 *
 * One tab stop; left and right arrow keys, Home and End move the choice.
 */
class SegmentedControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList segments READ segments WRITE setSegments)
    Q_PROPERTY(QStringList tips READ tips WRITE setTips)
    Q_PROPERTY(int selectedSegment READ selectedSegment WRITE setSelectedSegment NOTIFY selectionChanged)

public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    QStringList segments() const { return m_segments; }
    void setSegments(const QStringList &segments);
    /** The tooltip of each segment; empty: the tooltip of the control, for all of them. */
    QStringList tips() const { return m_tips; }
    void setTips(const QStringList &tips);
    int selectedSegment() const { return m_selected; }
    /** An index outside the list is ignored. */
    void setSelectedSegment(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void selectionChanged(int index);
    /** As selectionChanged, but only if a person made the choice. */
    void chosen(int index);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRectF segmentRect(int index) const;
    int segmentAt(const QPointF &place) const;
    int textWidth(int texts) const;
    void choose(int index);
    void describe();

    QStringList m_segments;
    QStringList m_tips;
    int m_selected = 0;
};

} // namespace window
