#pragma once

#include "app/seam/function.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

namespace window {

/** What window scripts ask about the program itself, and printing. */
class ProgramDesk : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString version READ version CONSTANT)
    /** The number that version files are compared with: 1.2.3 is 10203. */
    Q_PROPERTY(int build READ build CONSTANT)
    /** Where the program can be downloaded, as text; empty if not configured. */
    Q_PROPERTY(QString productPage READ productPage CONSTANT)
    Q_PROPERTY(bool hasUpdateHost READ hasUpdateHost CONSTANT)
    /** {name, version, licence} each. */
    Q_PROPERTY(QVariantList libraries READ libraries CONSTANT)
    /** The code of the language of the texts. */
    Q_PROPERTY(QString language READ language CONSTANT)
    /** The folder of the manual, or empty if there is none. */
    Q_PROPERTY(QString manual READ manual CONSTANT)
    /** Whether there are sample pictures. */
    Q_PROPERTY(bool hasSamples READ hasSamples CONSTANT)

public:
    using QObject::QObject;

    QString version() const { return QStringLiteral(QUORLIN_VERSION); }
    int build() const;
    QString productPage() const;
    bool hasUpdateHost() const;
    QVariantList libraries() const;
    QString language() const;
    QString manual() const;
    bool hasSamples() const;

    /**
     * Asks in the background whether there is a newer build, and calls @p taken(fields, problem) from the event loop: the
     * fields of cAppUpdater.getAppVersion() or null, and a sentence if that is unknown, or null.
     */
    Q_INVOKABLE void lookForUpdate(const script::Function &taken);

    /** A folder among the user's pictures with a copy of the samples; empty if it could not be made. */
    Q_INVOKABLE QString copySamples() const;

    /** The report that an earlier window left when it crashed; empty if there is none. forgetCrash() removes it. */
    Q_INVOKABLE QString crashReport() const;
    Q_INVOKABLE void forgetCrash();
    /**
     * Records what the window is working on, for a crash report: the name of the action, and the path of the picture.
     */
    Q_INVOKABLE void noteWork(const QString &action, const QString &picture);

    /**
     * Shows the print panel for pages of this size in points: {accepted, file, printer, order}. file is the path of a
     * PDF to be written instead of printing; printer is passed to sendToPrinter(); order to PageWork.
     */
    Q_INVOKABLE QVariantMap choosePrinter(int pages, double width, double height);
    /**
     * Hands a PDF to the print system, and calls @p taken(problem) from the event loop, with a sentence or nothing; the
     * file is no longer needed then.
     */
    Q_INVOKABLE void sendToPrinter(const QString &path, const QStringList &printer, const script::Function &taken);
    /** Lets the user choose paper and orientation for this and later prints, also in later runs. */
    Q_INVOKABLE void setUpPage();
    /** The paper that was chosen there, or else the default: {width, height, landscape}, upright, in millimetres. */
    Q_INVOKABLE QVariantMap paper() const;
};

} // namespace window
