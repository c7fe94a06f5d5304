#pragma once

#include "jobs/reading/reading_messages.h"
#include "platform/file/lent_file.h"

#include <memory>

namespace jobs {

/** What a worker says of the fields of a picture. @param values  {packet} of its sidecar */
AnswerMessage fieldsOf(const std::shared_ptr<const platform::LentFile> &picture, const QVariantMap &values);

/** Does the work of Reading::FieldsCopy. */
AnswerMessage fieldsCopy(const std::shared_ptr<const platform::LentFile> &picture,
                         const std::shared_ptr<const platform::LentFile> &copy,
                         const std::shared_ptr<const platform::LentFile> &copyToRead, const QVariantMap &values);

} // namespace jobs
