// A full offers request to the sandbox on loopback: build, send over TLS, parse,
// deliver on the GUI thread.
#include "BenchSupport.h"

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    SandboxProcess sandbox;
    if (!sandbox.isRunning()) {
        std::fprintf(stderr, "sandbox did not start\n");
        return 1;
    }
    QuorvaRestAPI *api = bench::useSandbox(sandbox);
    bench::timedOffersRequest(api); // connection set-up and TLS handshake
    std::vector<double> ms;
    for (int i = 0; i < 200; ++i)
        ms.push_back(bench::timedOffersRequest(api, quint64((i % 10) * 30)));
    std::printf("offers round trip (30 offers, https, kept-alive connection): median %.2f ms, p99 %.2f ms over %zu requests\n",
                bench::percentile(ms, 0.5), bench::percentile(ms, 0.99), ms.size());
    return 0;
}
