#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kLocaleAusente = 77;  // what CTest takes for a test that was skipped

/// The toolkit gives the process the user's locale; so do these tests, with the locale that CTest names and
/// never the machine's own. False when the machine hasn't got it.
bool ponLocalePedido() {
    const char* pedido = std::getenv("ORVEMO_LOCALE");
    return pedido == nullptr || std::setlocale(LC_ALL, pedido) != nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!ponLocalePedido()) {
        std::puts("The locale that ORVEMO_LOCALE names is not installed.");
        return kLocaleAusente;
    }
    return RUN_ALL_TESTS();
}
