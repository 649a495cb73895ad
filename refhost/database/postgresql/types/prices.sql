-- The prices of a delivery-note line: level (for one unit or the total for the quantity) and side (before or after the
-- discount) by rows, kind (without VAT, VAT, local VAT, with VAT) inside one. Null is an empty cell.

create type price_row as (cenab numeric, dpha numeric, dphb numeric, cenas numeric);

create type line_prices as (
    unit_before price_row,
    unit_after price_row,
    total_before price_row,
    total_after price_row
);
