// Two threads count without a guard.

#include <thread>

namespace {

int counted = 0;

void count() { counted += 1; }

} // namespace

int main() {
    std::thread other(count);
    count();
    other.join();
    return counted < 0 ? 1 : 0;
}
