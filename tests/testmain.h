#pragma once
// Each test class registers itself here; one executable runs them all.

#include <QObject>

#include <functional>
#include <vector>

namespace heft::test {

using Factory = std::function<QObject*()>;
std::vector<Factory>& Registry();

struct Registrar {
    explicit Registrar(Factory factory) { Registry().push_back(std::move(factory)); }
};

} // namespace heft::test

#define HEFT_TEST(Class) static const heft::test::Registrar registrar_##Class([] { return new Class; });
