#pragma once

#include "host/Exceptions.h"
#include "host/widgets/Form.h"

#include <QString>

#include <functional>
#include <string>
#include <vector>

/// A form that writes its events down.
class ProbeForm : public TForm {
public:
    explicit ProbeForm(TComponent* owner = nullptr) : TForm(owner) {
        setObjectName(QStringLiteral("ProbeForm"));
        resize(300, 200);
        Constructed();
    }

    std::vector<std::string> events;
    std::function<void()> onShow;
    std::function<void()> onClose;

    using TForm::Localize;

protected:
    void FormShow() override {
        events.emplace_back("show");
        if (onShow) {
            onShow();
        }
    }

    void FormClose() override {
        events.push_back("close " + std::to_string(ModalResult()) + (isVisible() ? " visible" : " hidden"));
        if (onClose) {
            onClose();
        }
    }
};
