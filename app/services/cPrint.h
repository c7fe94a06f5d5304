#pragma once

#include <QObject>

/** Prints pictures. */
class cPrint : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit cPrint(QObject *parent = nullptr) : QObject(parent) {}

    /**
     * Shows the print panel, with page setup, and prints one picture: scaled down to fit the page if it is larger,
     * centred, without margins.
     *
     * @param path  an empty page is printed if it cannot be read
     *
     * The settings are those of the run (see app::sharedPrintSettings()) and stay in force for later jobs, even if the
     * user cancels. Modal. Failures are not reported.
     */
    Q_INVOKABLE void printService(const QString &path) const;
};
