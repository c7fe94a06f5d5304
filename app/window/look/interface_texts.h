#pragma once

#include <QHash>
#include <QTranslator>

namespace window {

/**
 * The texts of windows, scripts and programs in one language: a file like {"context": {"English text": "translation"}}. A text
 * without a translation stays English.
 */
class InterfaceTexts : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    /** Reads the file; false where it is not there or holds no texts. */
    bool read(const QString &path);

    QString translate(const char *context, const char *text, const char *disambiguation, int count) const override;
    bool isEmpty() const override { return m_texts.isEmpty(); }

private:
    QHash<QByteArray, QString> m_texts; ///< by context, NUL and text
};

} // namespace window
