#include "waitms.h"

#include <QEventLoop>
#include <QTimer>

namespace heft {

void WaitMs(int milliseconds)
{
    if (milliseconds <= 0)
        return;
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace heft
