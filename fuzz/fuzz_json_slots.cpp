// The slots that parse JSON from a page: whatever text comes, nothing is thrown, and the host is asked only
// for what the text can mean.

#include "fuzz/Expect.h"
#include "livecontrol/devices/JS_Mediator_DiscoverySearchDialog.h"
#include "tests/support/FakeHost.h"

namespace {

struct Slots {
    FakeHost host;
    JS_Mediator_DiscoverySearchDialog mediator{&host, QString()};

    Slots() {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    }

    void connect(const QString& json) {
        host.calls.clear();
        mediator.connect(json);
        const int asked = host.calls.count(QStringLiteral("HostCameraControl.connectCameras"));
        expect(asked <= 1, "one request to connect at most");
        if (asked) {
            const QVariantList args = host.calls.lastArgs(QStringLiteral("HostCameraControl.connectCameras"));
            expect(!args.value(0).toStringList().isEmpty(), "no request to connect nothing");
            // An item needs at least a character and all but the last a comma.
            expect(args.value(0).toStringList().size() * 2 <= json.size(),
                   "no more cameras than the text has");
        }
        expectNoFailure();
    }

    void setNetworkSettings(const QString& json) {
        host.calls.clear();
        mediator.setNetworkSettings(json);
        expect(host.calls.count(QStringLiteral("HostCameraControl.setDiscoveryNetwork")) == 1,
               "one request to set the addresses");
        expectNoFailure();
    }

private:
    void expectNoFailure() const {
        expect(host.calls.count(QStringLiteral("HostApplication.handleError")) == 0, "no failure");
        expect(host.calls.count(QStringLiteral("HostApplication.updateAll")) == 1, "one update at the end");
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    static Slots s_slots;
    const QString json = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    s_slots.connect(json);
    s_slots.setNetworkSettings(json);
    return 0;
}
