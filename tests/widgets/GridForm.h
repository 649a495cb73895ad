#pragma once

#include "host/Exceptions.h"
#include "host/widgets/StringGrid.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <string>

/// A window with a grid of three columns (A 100, B 150, C 200 pixels wide) and four rows, and an edit beside it that
/// can take the focus.
class GridForm {
public:
    GridForm() {
        layout.addWidget(&grid);
        layout.addWidget(&other);
        form.resize(520, 260);
        fill(3, 4);
        for (int col = 1; col <= 3; ++col) {
            grid.SetColWidths(col, 50 + 50 * col);
        }
        other.setFocus(); // else the grid, as first in the tab order, would get it on showing
    }

    QWidget form;
    QVBoxLayout layout{&form};
    TStringGrid grid{&form};
    QLineEdit other{&form};

    /// Headers A, B, C … and cells A1, A2, B1 …
    void fill(int columns, int rows) {
        grid.SetColCount(columns + 1);
        grid.SetRowCount(rows + 1);
        for (int col = 1; col <= columns; ++col) {
            const std::string letter(1, static_cast<char>('A' + col - 1));
            grid.SetCells(col, 0, letter);
            for (int row = 1; row <= rows; ++row) {
                grid.SetCells(col, row, letter + std::to_string(row));
            }
        }
    }

    void show() {
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        settle();
    }

    /// Lets everything that is queued happen.
    void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    /// The header row with its widths: "A:100|B:150".
    std::string headerText() const {
        std::string text;
        for (int col = 1; col < grid.ColCount(); ++col) {
            text += (col > 1 ? "|" : "") + grid.Cells(col, 0) + ":" + std::to_string(grid.ColWidths(col));
        }
        return text;
    }

    bool sectionsStandInOrder() const {
        for (int section = 0; section < grid.horizontalHeader()->count(); ++section) {
            if (grid.horizontalHeader()->visualIndex(section) != section) {
                return false;
            }
        }
        return true;
    }

    /// In the coordinates of the header's viewport.
    QPoint headerCenter(int col) const {
        const QHeaderView* header = grid.horizontalHeader();
        return {header->sectionViewportPosition(col - 1) + header->sectionSize(col - 1) / 2, header->height() / 2};
    }

    /// In the coordinates of the cells' viewport.
    QPoint cellCenter(int col, int row) const {
        return grid.visualRect(grid.model()->index(row - 1, col - 1)).center();
    }

    void click(int col, int row) { QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCenter(col, row)); }

    void dragHeader(QPoint from, QPoint to) { dragOver(*grid.horizontalHeader()->viewport(), from, to); }

    void dragOver(QWidget& part, QPoint from, QPoint to) {
        hover(part, from); // the header decides by the last move what a press takes hold of
        QTest::mousePress(&part, Qt::LeftButton, {}, from);
        drag(part, (from + to) / 2);
        drag(part, to);
        QTest::mouseRelease(&part, Qt::LeftButton, {}, to);
    }

    static void hover(QWidget& part, QPoint position) { move(part, position, Qt::NoButton); }

private:
    static void drag(QWidget& part, QPoint position) { move(part, position, Qt::LeftButton); }

    static void move(QWidget& part, QPoint position, Qt::MouseButtons buttons) {
        QMouseEvent event(QEvent::MouseMove, position, part.mapToGlobal(position), Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(&part, &event);
    }
};

/// The button where the header row and the indicator column meet.
inline QAbstractButton* cornerOf(TStringGrid& grid) {
    return grid.findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
}
