-- The rows with which the editor of orders and templates opens.

-- What a source gives for one of them. UNITID is the unit of the quantity.
create type order_fill as (
    ITEMID integer, SKLDID integer, DODVID integer, UNITID integer, MNOZSTVI numeric, POPIS text, KOMENTAR text
);

-- The row as the editor takes it.
create type order_row as (
    SKUPSPOL1 text, SKUPSPOL2 text, SKUPSPOL3 text, SKLADPOL text, SKLAD text, DODAVATEL text,
    MNOZSTVIHL text, JEDNOTKYHL text, SKPLIDHL integer,
    MNOZSTVIV1 text, JEDNOTKYV1 text, SKPLIDV1 integer,
    MNOZSTVIV2 text, JEDNOTKYV2 text, SKPLIDV2 integer,
    POPIS text, KOMENTAR text
);
