#pragma once

#include "jobs/desk/errand.h"
#include "platform/file/replacement_file.h"

#include <QString>

#include <functional>
#include <memory>

namespace jobs {

/**
 * The user comment of one picture, written by a worker: it makes an edited copy and looks whether that is right; here the copy takes the
 * picture's place. See platform::writeUserComment().
 */
class CommentErrand : public Errand
{
public:
    /** Empty if it was written, else a sentence; the file is then unchanged. */
    using Take = std::function<void(const QString &problem)>;

    /** @param take  is called once, unless the errand is dropped before; then the file is as it was */
    CommentErrand(const QString &path, const QString &comment, Take take);

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override { answer(reason); }
    int seconds() const override { return 120; }

private:
    void answer(const QString &problem);

    QString m_path;
    QString m_comment;
    Take m_take;
    std::unique_ptr<platform::EditedFile> m_file;
};

/** The same, waited for. */
QString writeCommentNow(const QString &path, const QString &comment);

} // namespace jobs
