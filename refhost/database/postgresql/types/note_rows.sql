-- The rows with which the editor of a delivery note opens.

-- What a source gives for one of them. SOURCEID is the delivery-note line whose prices are carried over; without one CENA
-- (unit price without VAT before the discount) and SLEVA are those of a price list.
create type note_fill as (
    DOBSID integer, SKLPID integer, SKLDID integer, DPHID integer, MNOZSTVI numeric, SOURCEID integer, CENA numeric,
    SLEVA numeric
);

-- The row as the editor takes it.
create type note_row as (
    DOBSID integer, SKUPSPOL1 text, SKUPSPOL2 text, SKUPSPOL3 text, SKLADPOL text, SKLAD text, MNOZSTVI text, DPH text,
    SLEVA text,
    JEDNCENABSESLEVOU text, JEDNDPHASESLEVOU text, JEDNDPHBSESLEVOU text, JEDNCENASSESLEVOU text,
    JEDNCENABBEZSLEVY text, JEDNDPHABEZSLEVY text, JEDNDPHBBEZSLEVY text, JEDNCENASBEZSLEVY text,
    CENABSESLEVOU text, DPHASESLEVOU text, DPHBSESLEVOU text, CENASSESLEVOU text,
    CENABBEZSLEVY text, DPHABEZSLEVY text, DPHBBEZSLEVY text, CENASBEZSLEVY text,
    TRVANLIVOST text
);
