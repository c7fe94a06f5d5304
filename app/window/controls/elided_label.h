#pragma once

#include <QLabel>

namespace window {

/**
 * One line of text that ends in an ellipsis if it does not fit; then the tooltip shows all of it, unless the label has
 * another one.
 */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_tip; ///< the tooltip that was set on the label
};

} // namespace window
