-- The rows with which an editor opens, while they are put together.

-- Rows of a delivery note in their order. SOURCEID is the delivery-note line whose prices are carried over; without one
-- CENA (unit price without VAT before the discount) and SLEVA are those of a price list.
create temp table NOTE_FILL (
    LINE integer primary key,
    DOBSID integer, SKLPID integer, SKLDID integer, DPHID integer, MNOZSTVI text, SOURCEID integer, CENA text, SLEVA text
);

-- Rows of an order or template in their order. UNITID is the unit of the quantity.
create temp table ORDER_FILL (
    LINE integer primary key,
    ITEMID integer, SKLDID integer, DODVID integer, UNITID integer, MNOZSTVI text, POPIS text, KOMENTAR text
);
