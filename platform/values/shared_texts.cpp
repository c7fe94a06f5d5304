#include "platform/values/shared_texts.h"

namespace platform {

SharedTexts SharedTexts::make()
{
    SharedTexts list;
    list.m_list = std::make_shared<List>();
    return list;
}

void SharedTexts::append(const QString &text)
{
    if (m_list)
        m_list->texts.append(text);
}

void SharedTexts::empty()
{
    if (!m_list)
        return;
    m_list->texts.clear();
    if (m_list->onEmptied)
        m_list->onEmptied();
}

void SharedTexts::setForm(const QVariant &form, std::function<void()> onEmptied)
{
    if (!m_list)
        return;
    m_list->form = form;
    m_list->onEmptied = std::move(onEmptied);
}

} // namespace platform
