#pragma once

#include <QHeaderView>

namespace window {

/**
 * The headings of a table, which sort it by keyboard too: the Tab key leads to them, left and right arrow keys walk over them, and
 * Space or Return sorts by the one with the frame, the other way round when pressed again.
 */
class KeyHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit KeyHeader(QWidget *parent);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void step(int by);
    void sort();
    void showPlace();

    int m_place = 0; ///< as the columns lie
};

} // namespace window
