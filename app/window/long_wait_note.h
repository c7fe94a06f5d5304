#pragma once

#include "jobs/desk/worker_desk.h"

#include <QDialog>

#include <memory>

namespace window {

/**
 * Says that something takes long which the program has to wait for, with a button that gives it up. The windows are drawn meanwhile, and
 * timers go on; nothing but that button can be chosen, as with any question.
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
