#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

/// Acts on the next modal window while the code under test is blocked in it: waits until a modal window of the object
/// name (any when empty) is active, then runs the action once. A window that does not come is a failure, also when the
/// code under test was not blocked at all; whatever modal window is there in its place is closed, so that the test
/// ends.
class ModalDriver : public QObject {
public:
    ModalDriver(QString name, std::function<void(QWidget&)> action)
        : name_(std::move(name)), action_(std::move(action)) {
        QObject::connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        timer_.start(5);
        waited_.start();
    }

    ~ModalDriver() override {
        if (timer_.isActive()) {
            ADD_FAILURE() << "no modal window named '" << name_.toStdString() << "' was there to act on";
        }
    }

    bool hasActed() const { return hasActed_; }

private:
    void look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal && (name_.isEmpty() || modal->objectName() == name_) && modal->isVisible()) {
            timer_.stop();
            hasActed_ = true;
            action_(*modal);
        } else if (waited_.hasExpired(5000)) {
            timer_.stop();
            ADD_FAILURE() << "no modal window named '" << name_.toStdString() << "' appeared";
            if (modal) {
                modal->close();
            }
        }
    }

    QString name_;
    std::function<void(QWidget&)> action_;
    QTimer timer_;
    QElapsedTimer waited_;
    bool hasActed_ = false;
};

/// Where no modal window may come: one that does is a failure in words and is closed, so that the test ends.
class NoModal : public QObject {
public:
    NoModal() {
        QObject::connect(&timer_, &QTimer::timeout, this, [] {
            if (QWidget* const modal = QApplication::activeModalWidget(); modal && modal->isVisible()) {
                ADD_FAILURE() << "the modal window '" << modal->windowTitle().toStdString() << "' opened";
                modal->close();
            }
        });
        timer_.start(5);
    }

private:
    QTimer timer_;
};
