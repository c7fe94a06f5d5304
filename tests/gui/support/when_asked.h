#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

/** Answers the next message box, whenever it comes. */
inline void whenAsked(const std::function<void(QMessageBox &box)> &answer)
{
    constexpr int soonMs = 50;
    QTimer::singleShot(soonMs, [answer] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            answer(*box);
        else
            whenAsked(answer);
    });
}
