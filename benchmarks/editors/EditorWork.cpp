#include "benchmarks/editors/EditorWork.h"

#include "benchmarks/editors/BareCalls.h"
#include "host/widgets/StringGrid.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace benchmark {

namespace {

constexpr double c_Frame = 1e6 / 60;
constexpr int c_Cells = 50; ///< Committed and painted in each round, spread over all lines.
/// Saving that many lines takes so long that one round has to do.
constexpr int c_ManyLines = 100000;

void press(QWidget& target, Qt::Key key, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&target, &event);
}

class EditorWork {
public:
    EditorWork(Company& company, const EditorKind& kind, std::int64_t source, int rounds, Report& report)
        : company_(company),
          kind_(kind),
          rounds_(rounds),
          report_(report),
          clock_(company.clock()),
          bare_(openBareCalls(company.url(), Company::c_User)),
          clerk_(company.measured()),
          host_(clerk_) {
        clerk_.chooses(kind.Source, source);
        if (bare_->process() != 0) {
            clock_.addProcess(bare_->process());
        }
    }

    void run() {
        const TScopedHost scope(host_);
        playRound(false); // for nothing: the first round prepares the statements and loads the fonts
        for (Series* series : {&opening_, &commit_, &digit_, &enter_, &page_, &scroll_, &saving_}) {
            *series = {};
        }
        for (int round = 0; round < rounds_; ++round) {
            playRound(round == 0 || company_.lines() < c_ManyLines);
        }
        tell();
    }

private:
    struct Series {
        std::vector<double> Costs;
        std::vector<double> Floors;
    };

    double cost(const std::function<void()>& work) { return clock_.microseconds(work); }
    std::int64_t newDocument() {
        return kind_.Columns == c_NoteEditor.Columns ? company_.newNote() : company_.newOrder();
    }
    /// A line somewhere in the document, from 1.
    int lineAt(int cell) const { return company_.lines() / (c_Cells + 1) * (cell + 1) + 1; }

    void playRound(bool saves) {
        const std::unique_ptr<TEditBox> editor = open();
        for (int cell = 0; cell < c_Cells; ++cell) {
            commit(*editor, lineAt(cell));
            pressKeys(*editor, lineAt(cell));
        }
        if (saves) {
            save(*editor);
        }
        editor->Close();
    }

    std::unique_ptr<TEditBox> open();
    void commit(TEditBox& editor, int row);
    void pressKeys(TEditBox& editor, int row);
    void save(TEditBox& editor);
    void tell();

    Company& company_;
    const EditorKind& kind_;
    int rounds_;
    Report& report_;
    CostClock clock_; ///< The company's, and the process that runs the floor's calls.
    std::unique_ptr<BareCalls> bare_;
    ClerkConnection clerk_;
    BenchmarkHost host_;
    Series opening_;
    Series commit_;
    Series digit_;
    Series enter_;
    Series page_;
    Series scroll_;
    Series saving_;
};

std::unique_ptr<TEditBox> EditorWork::open() {
    const std::int64_t document = newDocument();
    std::unique_ptr<TEditBox> editor;
    clerk_.keep();
    opening_.Costs.push_back(cost([&] {
        editor = kind_.Open(document);
        show(*editor);
        untilPainted();
    }));
    double floor = cost([&] { editor->repaint(); });
    for (const TProcedureCall& call : clerk_.take()) {
        if (call.Name.find("GetPolozky") != AnsiString::npos) {
            floor += cost([&] { bare_->run(call); });
        }
    }
    opening_.Floors.push_back(floor);
    return editor;
}

/// The value is typed before the clock starts.
void EditorWork::commit(TEditBox& editor, int row) {
    editor.ShowEditor(editor.GetColumnByName(kind_.Typed), row, true);
    auto* const edit = dynamic_cast<QLineEdit*>(editor.ActiveEditor());
    if (!edit) {
        throw std::runtime_error("no cell could be opened");
    }
    edit->clear();
    press(*edit, Qt::Key_3, QStringLiteral("3"));
    clerk_.keep();
    bool isCommitted = false;
    const double committing = cost([&] { isCommitted = editor.HideEditor(); });
    if (!isCommitted) {
        throw std::runtime_error("a value was refused");
    }
    commit_.Costs.push_back(committing);
    double floor = 0;
    for (const TProcedureCall& call : clerk_.take()) {
        floor += cost([&] { bare_->run(call); });
    }
    commit_.Floors.push_back(floor);
}

void EditorWork::pressKeys(TEditBox& editor, int row) {
    editor.ShowEditor(editor.GetColumnByName(kind_.Typed), row, true);
    untilPainted();
    QWidget& edit = *editor.ActiveEditor();
    digit_.Costs.push_back(cost([&] {
        press(edit, Qt::Key_7, QStringLiteral("7"));
        untilPainted();
    }));
    enter_.Costs.push_back(cost([&] {
        press(edit, Qt::Key_Return, QStringLiteral("\r"));
        untilPainted();
    }));
    editor.HideEditor();
    editor.StringGrid->setFocus();
    editor.StringGrid->SetCurrentCell(1, row); // a column that opens no editor
    untilPainted();
    page_.Costs.push_back(cost([&] {
        press(*editor.StringGrid, Qt::Key_PageDown);
        untilPainted();
    }));
    QScrollBar& bar = *editor.StringGrid->verticalScrollBar();
    scroll_.Costs.push_back(cost([&] {
        bar.setValue(bar.value() + bar.singleStep());
        untilPainted();
    }));
}

/// The floor's calls are kept beforehand: a copy of each would be a part of the measured save.
void EditorWork::save(TEditBox& editor) {
    clerk_.rehearse();
    editor.SaveData();
    std::vector<TProcedureCall> calls = clerk_.take();
    bool isSaved = false;
    saving_.Costs.push_back(cost([&] { isSaved = editor.SaveData(); }));
    if (!isSaved) {
        throw std::runtime_error("the document was not saved");
    }
    for (TDbParam& param : calls.back().Params) {
        if (param.Name == kind_.Target) {
            param.Value = newDocument();
        }
    }
    saving_.Floors.push_back(cost([&] { bare_->save(calls); }));
}

void EditorWork::tell() {
    const auto add = [this](const char* work, double units, const Series& series, double floor) {
        report_.add({company_.engineName(), std::string(kind_.Name) + " " + work, company_.lines(),
                     median(series.Costs) / units, floor / units});
    };
    // Each press is seen by the clerk: the slowest of all is told beside the median.
    const auto addKey = [this](const char* work, const Series& series) {
        report_.add({company_.engineName(), std::string(kind_.Name) + " " + work, company_.lines(),
                     median(series.Costs), c_Frame, Unit::Microseconds, std::ranges::max(series.Costs)});
    };
    const double lines = company_.lines();
    add("opening, a line", lines, opening_, median(opening_.Floors));
    if (kind_.Columns == c_NoteEditor.Columns) { // the other one recalculates nothing
        add("commit of a cell", 1, commit_, median(commit_.Floors));
    }
    add("saving, a line", lines, saving_, median(saving_.Floors));
    addKey("digit until shown", digit_);
    addKey("Enter until shown", enter_);
    addKey("Page Down until shown", page_);
    addKey("scrolling a line", scroll_);
}

} // namespace

void measureEditor(Company& company, const EditorKind& kind, std::int64_t source, int rounds, Report& report) {
    EditorWork(company, kind, source, rounds, report).run();
}

} // namespace benchmark
