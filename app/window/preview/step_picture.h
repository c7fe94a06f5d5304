#pragma once

#include "jobs/reading/read_errand.h"

#include <QImage>
#include <QTimer>
#include <QVariantList>
#include <QWidget>

namespace window {

/**
 * A small picture of the effect of some edits. It is made by a worker once things have settled; the previous one stays
 * until then.
 */
class StepPicture : public QWidget
{
    Q_OBJECT

public:
    explicit StepPicture(QWidget *parent = nullptr);

    /**
     * Shows the picture at @p path with the edits applied, see jobs/reading/preview_edits.h; nothing for an empty path,
     * and for what cannot be made.
     */
    Q_INVOKABLE void showEdits(const QString &path, const QVariantList &edits);

    /** What is shown now, in pixels of the screen; null for nothing. */
    QImage image() const { return m_image; }

    QSize sizeHint() const override { return {48, 36}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void ask();

    QString m_path;
    QVariantList m_edits;
    bool m_isOld = false; ///< what is shown is out of date
    QImage m_image;
    QTimer m_settled;
    jobs::Reader m_reader;
};

} // namespace window
