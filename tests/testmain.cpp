#include "testmain.h"

#include <QApplication>
#include <QTest>

#include <memory>

namespace heft::test {
std::vector<Factory>& Registry()
{
    static std::vector<Factory> factories;
    return factories;
}
} // namespace heft::test

// Runs every registered class; the arguments (e.g. a test function's name)
// go to each of them, so "-functions" lists all. HEFT_TEST_CLASS=Name runs
// one class only.
int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QByteArray onlyClass = qgetenv("HEFT_TEST_CLASS");
    int failures = 0;
    for (const auto& factory : heft::test::Registry()) {
        std::unique_ptr<QObject> testObject(factory());
        if (!onlyClass.isEmpty() && onlyClass != testObject->metaObject()->className())
            continue;
        failures += QTest::qExec(testObject.get(), argc, argv);
    }
    return failures == 0 ? 0 : 1;
}
