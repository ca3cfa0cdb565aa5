#pragma once

#include "kit/baseDialog.h"
#include "support/parallel.h"

#include <atomic>
#include <functional>
#include <string>

class QLabel;
class QProgressBar;

namespace zdt {

/// Shows how far a long work is while a thread does it. The window keeps painting, and nothing in it can be clicked.
class ZProgressDialog : public ZBaseDialog {
    Q_OBJECT

public:
    /// Runs on a thread of its own. Gives whether it succeeded; tells its progress, from 0 to 1, from any thread.
    using Job = std::function<bool(const Progress&)>;

    explicit ZProgressDialog(const QString& label, QWidget* parent = nullptr);

    /// Offers a button that sets `cancelRequested`; the job asks for that and comes to an end by itself.
    void offerCancel(const QString& text);
    /// Lets the dialog stay away from a job that ends within a moment. Nothing in the window can be reached meanwhile.
    void showLate() { _isLate = true; }
    /// To be called by the job, from any thread.
    [[nodiscard]] bool cancelRequested() const { return _cancel; }
    /// The same for work that looks at it by itself.
    [[nodiscard]] const std::atomic<bool>& cancelFlag() const { return _cancel; }

    /// Shows the dialog, does the job and waits for its end. False if the job gave false or threw; `error` tells what
    /// was thrown.
    [[nodiscard]] bool run(const Job& job);
    [[nodiscard]] const std::string& error() const { return _error; }

    /// A window must not close over a work that is going on.
    [[nodiscard]] bool mayClose() const override { return false; }

private:
    void work(const Job& job);
    void showProgress();
    /// Whether the job ends within the moment.
    [[nodiscard]] bool endsSoon();

    QLabel* _share;
    QProgressBar* _bar;
    std::atomic<double> _done = 0;
    std::atomic<bool> _cancel = false;
    bool _isLate = false;
    bool _succeeded = false;
    std::string _error;
};

} // namespace zdt
