#pragma once

#include <QLabel>

namespace window {

/** One line of text that ends in an ellipsis where there is no room for it; then the whole is the tooltip, if the label has none of its own. */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_tip; ///< the tooltip that the label gave itself
};

} // namespace window
