#pragma once

#include "jobs/desk/worker_desk.h"

#include <QDialog>

#include <memory>

namespace window {

/**
 * Shows that the program must wait for something that takes long, with a button that gives up waiting. Windows are
 * repainted and timers run meanwhile; nothing but that button can be used, as with any question.
 */
class LongWaitNote : public jobs::LongWait
{
public:
    LongWaitNote() { jobs::WorkerDesk::useLongWait(this); }
    ~LongWaitNote() override { jobs::WorkerDesk::useLongWait(nullptr); }

    void begin() override;
    bool goOn() override;
    void end() override;

private:
    void show();

    int m_depth = 0;
    bool m_isGivenUp = false;
    std::unique_ptr<QDialog> m_note;
};

} // namespace window
