#pragma once

#include <functional>
#include <memory>
#include <utility>

// Where the connection's HID calls run. A job's work runs on the executor's side, then its
// continuation on the thread that submitted it. Jobs run one at a time in the order they were
// submitted, so what goes over the wire keeps the order the connection gave it.
class HidExecutor
{
public:
    virtual ~HidExecutor() = default;

    // Runs work, then done on the submitting thread. done never runs once the executor is gone.
    virtual void submit(std::function<void()> work, std::function<void()> done) = 0;

    // The same with a result handed from the work to its continuation.
    template <class Result> void run(std::function<Result()> work, std::function<void(Result)> done)
    {
        auto result = std::make_shared<Result>();
        submit([result, work = std::move(work)] { *result = work(); },
               [result, done = std::move(done)] { done(std::move(*result)); });
    }
};

// Runs each job at once on the caller's thread: the tests in virtual time and the tool, where
// nothing else waits for the thread.
class InlineHidExecutor final : public HidExecutor
{
public:
    void submit(std::function<void()> work, std::function<void()> done) override
    {
        work();
        if (done) done();
    }
};
