#pragma once

#include <QObject>

/** Prints pictures. */
class cPrint : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit cPrint(QObject *parent = nullptr) : QObject(parent) {}

    /**
     * Shows the print panel, with page setup, and prints one picture: scaled down to fit the page where it is larger, in the
     * middle, without margins.
     *
     * @param path  an empty page is printed where it cannot be read
     *
     * The settings are those of the run (see app::sharedPrintSettings()) and stay so for later jobs, also where the user
     * cancels. Modal. Nothing is reported.
     */
    Q_INVOKABLE void printService(const QString &path) const;
};
