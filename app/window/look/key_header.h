#pragma once

#include <QHeaderView>

namespace window {

/**
 * Table headings that can be sorted by keyboard: Tab reaches them, the left and right arrow keys move between them, and
 * Space or Return sorts by the one with the frame, reversed when pressed again. Long headings take two lines.
 */
class KeyHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit KeyHeader(QWidget *parent);

    /** Whether the heading has too little room. */
    bool isCut(int column) const;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    QSize sectionSizeFromContents(int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;

private:
    void step(int by);
    void sort();
    void showPlace();
    QFontMetrics metrics() const;
    QStringList linesOf(int column) const;
    int roomForText(int column) const;

    int m_place = 0; ///< as the columns lie
};

} // namespace window
