#pragma once

#include <QMetaType>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

namespace platform {

/**
 * A list of texts shared by all holders: emptying it empties it for all of them.
 *
 * Copies share one list; a default-constructed one is no list at all. A script gets the list as an array, always the
 * same one, which is emptied with it. What is appended after that does not reach the array. Main thread only.
 */
class SharedTexts
{
public:
    static SharedTexts make();

    bool isNull() const { return !m_list; }
    /** Empty for no list. */
    QStringList texts() const { return m_list ? m_list->texts : QStringList(); }
    /** No-op on a null list. */
    void append(const QString &text);
    /** Removes all texts, here and in the array that was given to a script. */
    void empty();

    /** The array that a script was given for this list; invalid if none was. */
    QVariant form() const { return m_list ? m_list->form : QVariant(); }
    /** Stores the array given to a script. @p onEmptied empties it. */
    void setForm(const QVariant &form, std::function<void()> onEmptied);

    friend bool operator==(const SharedTexts &a, const SharedTexts &b) { return a.m_list == b.m_list; }

private:
    struct List
    {
        QStringList texts;
        QVariant form;
        std::function<void()> onEmptied;
    };

    std::shared_ptr<List> m_list;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::SharedTexts)
