#pragma once

#include <QComboBox>

class QLabel;

namespace window {

/**
 * A combo box whose entries stay readable however narrow it is: a chosen entry without enough room ends in an ellipsis
 * and is shown in the tooltip, if the box has no other, and the list opens as wide as its entries need.
 */
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    /**
     * As wide as its entries. The property mostCharacters limits that in a box whose entries others may name.
     */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;
    /** The widest text that is readable while the box is closed, in pixels. */
    int roomForText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /** The toolkit measures the ink of the entries; what is drawn is a little wider. */
    static QSize withBearing(QSize ink) { return {ink.width() + 8, ink.height()}; }
    int widthOf(int entry) const;

    QLabel *m_label = nullptr; ///< says what the box is for if no label beside it does
    QString m_tip;             ///< the tooltip that was set on the box
};

} // namespace window
