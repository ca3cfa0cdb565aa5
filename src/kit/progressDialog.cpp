#include "kit/progressDialog.h"

#include "kit/tokens.h"

#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <exception>
#include <thread>

namespace zdt {

namespace {

constexpr int dialogWidth = 400;
constexpr int fullBar = 1000;
/// Milliseconds before a work is felt to be long.
constexpr int patience = 300;

} // namespace

ZProgressDialog::ZProgressDialog(const QString& label, QWidget* parent)
    : ZBaseDialog(parent)
    , _share(new QLabel)
    , _bar(new QProgressBar) {
    setClosable(false);
    setFixedWidth(dialogWidth);
    setTitle(label);
    _share->setObjectName("progressShare");
    _share->setProperty("type", "hint");
    _share->setAlignment(Qt::AlignRight);
    _bar->setObjectName("progressBar");
    _bar->setAccessibleName(label);
    _bar->setTextVisible(false);
    _bar->setRange(0, fullBar);
    body()->setSpacing(8);
    body()->addWidget(_bar);
    body()->addWidget(_share);
}

void ZProgressDialog::offerCancel(const QString& text) {
    QPushButton* button = addButton(text, "progressCancel");
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, button] {
        _cancel = true;
        button->setEnabled(false);
    });
}

void ZProgressDialog::showProgress() {
    const double done = _done;
    _bar->setValue(static_cast<int>(done * fullBar));
    _share->setText(QString("%1 %").arg(static_cast<int>(done * 100)));
}

void ZProgressDialog::work(const Job& job) {
    try {
        _succeeded = job([this](double done) { _done = qBound(0.0, done, 1.0); });
    } catch (const std::exception& thrown) {
        _succeeded = false;
        _error = thrown.what();
    }
    QMetaObject::invokeMethod(this, &QDialog::accept, Qt::QueuedConnection);
}

bool ZProgressDialog::endsSoon() {
    QEventLoop moment;
    connect(this, &QDialog::accepted, &moment, &QEventLoop::quit);
    QTimer::singleShot(patience, &moment, &QEventLoop::quit);
    setResult(Rejected);
    moment.exec(QEventLoop::ExcludeUserInputEvents);
    return result() == Accepted;
}

bool ZProgressDialog::run(const Job& job) {
    _done = 0;
    _cancel = false;
    _error.clear();
    showProgress();
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, &ZProgressDialog::showProgress);
    ticks.start(token::progressInterval);
    std::thread worker([&] { work(job); });
    if (!_isLate || !endsSoon())
        exec();
    // Whoever hides the dialog early, its job is waited for: it works on what its caller owns.
    worker.join();
    return _succeeded;
}

} // namespace zdt
