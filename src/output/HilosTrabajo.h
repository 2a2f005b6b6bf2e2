#pragma once
// A few threads that run the jobs handed to them, in the order given, for as long as the
// object lives: a report's pictures are painted, and read back, on them. The threads stay
// from one job to the next, and with them their working memory.

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace trevalo {

template <typename R> class HilosTrabajo {
  public:
    explicit HilosTrabajo(int hilos) {
        for (int i = 0; i < hilos; ++i) hilos_.emplace_back([this] { Trabajar(); });
    }
    // Jobs not begun are dropped; those under way are waited for.
    ~HilosTrabajo() {
        {
            const std::lock_guard cerrojo(mutex_);
            fin_ = true;
            cola_.clear();
        }
        aviso_.notify_all();
        for (auto& h : hilos_) h.join();
    }
    HilosTrabajo(const HilosTrabajo&) = delete;
    HilosTrabajo& operator=(const HilosTrabajo&) = delete;

    // The job's result, or the exception it raised, comes through the future.
    std::future<R> Encargar(std::function<R()> trabajo) {
        std::packaged_task<R()> tarea(std::move(trabajo));
        auto futuro = tarea.get_future();
        {
            const std::lock_guard cerrojo(mutex_);
            cola_.push_back(std::move(tarea));
        }
        aviso_.notify_one();
        return futuro;
    }

  private:
    void Trabajar() {
        for (;;) {
            std::packaged_task<R()> tarea;
            {
                std::unique_lock cerrojo(mutex_);
                aviso_.wait(cerrojo, [this] { return fin_ || !cola_.empty(); });
                if (fin_) return;
                tarea = std::move(cola_.front());
                cola_.pop_front();
            }
            tarea();
        }
    }

    std::mutex mutex_;
    std::condition_variable aviso_;
    std::deque<std::packaged_task<R()>> cola_;
    bool fin_ = false;
    std::vector<std::thread> hilos_;
};

} // namespace trevalo
