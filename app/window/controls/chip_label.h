#pragma once

#include <QStringList>
#include <QVariantList>
#include <QWidget>

namespace window {

/** A line of text in which some parts are in a coloured frame, such as the tokens of a pattern. Wraps. */
class ChipLabel : public QWidget
{
    Q_OBJECT

public:
    explicit ChipLabel(QWidget *parent = nullptr);

    /** @param chips  for each text whether it is in a frame */
    Q_INVOKABLE void setParts(const QStringList &texts, const QVariantList &chips);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {40, lineHeight()}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Part
    {
        QString text;
        bool isChip = false;
        QRect place;
    };

    int lineHeight() const;
    /** The parts, each with its position for that width; a part that is wider is cut off at the end. */
    QList<Part> laidOut(int width) const;

    QList<Part> m_parts;
};

} // namespace window
