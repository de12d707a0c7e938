#pragma once

#include <ctime>

/*!
    Stop watch of processor time: what other programs take meanwhile does not count.
*/
class CpuClock
{
public:
    enum Scope {
        Thread = CLOCK_THREAD_CPUTIME_ID,   //!< the calling thread
        Process = CLOCK_PROCESS_CPUTIME_ID, //!< all threads, the QML engine's loader included
    };

    explicit CpuClock(Scope scope = Thread)
        : m_scope(scope)
        , m_start(now())
    {
    }

    //! Microseconds since construction or the last call.
    double lap()
    {
        const double end = now();
        const double elapsed = end - m_start;
        m_start = end;
        return elapsed;
    }

private:
    double now() const
    {
        timespec time;
        clock_gettime(m_scope, &time);
        return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
    }

    clockid_t m_scope;
    double m_start;
};
