// What a notification costs, for each listener: ours, a direct Qt signal connected to a functor,
// and the least it can be, a plain virtual call over a list.
#include <ovk/core/observable.h>

#include <QObject>

#include <benchmark/benchmark.h>

#include <list>
#include <memory>
#include <vector>

namespace {

class Counter : public ovk::Observer
{
public:
    static quint64 calls;

protected:
    void _DoOnNotify() override { ++calls; }
};

quint64 Counter::calls = 0;

class Sender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void changed();
};

class Listener
{
public:
    virtual ~Listener() = default;
    virtual void OnChanged() = 0;
};

class PlainListener : public Listener
{
public:
    void OnChanged() override { ++Counter::calls; }
};

void CountListeners(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
    benchmark::DoNotOptimize(Counter::calls);
}

void NotifyObservers(benchmark::State& state)
{
    ovk::Signal signal;
    std::vector<std::unique_ptr<Counter>> observers;
    for (int i = 0; i < state.range(0); ++i) {
        observers.push_back(std::make_unique<Counter>());
        signal.Attach(*observers.back());
    }
    for (auto _ : state)
        signal.Emit();
    CountListeners(state);
}

void NotifyFunctions(benchmark::State& state)
{
    ovk::Signal signal;
    for (int i = 0; i < state.range(0); ++i)
        signal.Attach([] { ++Counter::calls; });
    for (auto _ : state)
        signal.Emit();
    CountListeners(state);
}

void EmitQtSignal(benchmark::State& state)
{
    Sender sender;
    for (int i = 0; i < state.range(0); ++i)
        QObject::connect(&sender, &Sender::changed, &sender, [] { ++Counter::calls; }, Qt::DirectConnection);
    for (auto _ : state)
        Q_EMIT sender.changed();
    CountListeners(state);
}

void CallOverList(benchmark::State& state)
{
    std::vector<std::unique_ptr<PlainListener>> owners;
    std::list<Listener*> listeners;
    for (int i = 0; i < state.range(0); ++i) {
        owners.push_back(std::make_unique<PlainListener>());
        listeners.push_back(owners.back().get());
    }
    for (auto _ : state) {
        for (Listener* listener : listeners)
            listener->OnChanged();
        benchmark::ClobberMemory();
    }
    CountListeners(state);
}

} // namespace

BENCHMARK(NotifyObservers)->Arg(1)->Arg(10)->Arg(1000);
BENCHMARK(NotifyFunctions)->Arg(1)->Arg(10)->Arg(1000);
BENCHMARK(EmitQtSignal)->Arg(1)->Arg(10)->Arg(1000);
BENCHMARK(CallOverList)->Arg(1)->Arg(10)->Arg(1000);

BENCHMARK_MAIN();

#include "notification_benchmark.moc"
