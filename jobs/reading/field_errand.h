#pragma once

#include "jobs/desk/errand.h"
#include "platform/file/replacement_file.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace jobs {

/**
 * The metadata of one picture, changed by a worker: it makes an edited copy, or the packet of a sidecar, and looks whether that is right;
 * here it takes its place. See meta::writeFields().
 */
class FieldErrand : public Errand
{
public:
    /**
     * {problem, changed, file, undo, before, after}: problem is a sentence if nothing was done; file is what was
     * written, the picture or its sidecar; undo is a text to revert it with; before and after are the fields, see
     * meta::fieldMap().
     */
    using Take = std::function<void(const QVariantMap &answer)>;
    /** Whether the edit takes its place by itself, or by place(): the answer is then {isReady: true} besides. */
    enum class Placing { AtOnce, OnRequest };

    /**
     * @param work  see meta::workFrom(); {revert: undo} restores the old file, which fails if it was changed since
     * @param take  is called once, unless the errand is dropped before; then the file is as it was
     */
    FieldErrand(const QString &path, const QVariantMap &work, Placing placing, Take take);

    /** The edit that was ready takes its place; {problem, changed, file}. An errand that is dropped instead changes nothing. */
    QVariantMap place();

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override;
    int seconds() const override { return 120; }

private:
    bool isSidecar() const { return !m_newPacket.isEmpty(); }
    QString placeFile();
    QString placeSidecar();
    bool revertSidecar(const QString &undo);
    void answer(QVariantMap answer);

    QString m_path;
    QVariantMap m_work;
    Placing m_placing;
    Take m_take;
    QString m_sidecar;
    QByteArray m_packet;    ///< of the sidecar as it was; empty if there was none
    QByteArray m_newPacket; ///< empty if the picture itself is changed
    std::unique_ptr<platform::EditedFile> m_file;
};

/** The same, waited for. */
QVariantMap writeFieldsNow(const QString &path, const QVariantMap &work);

/** The values of a message that asks for the fields of a picture: {packet} of its sidecar. */
QVariantMap askingFields(const QString &path);

/** What a worker says of the fields with what only this side knows: {fields, inPlace, sidecar, problem}. */
QVariantMap fieldsAnswer(const QString &path, const QString &problem, const QVariantMap &values);

} // namespace jobs
