-- A record that may be the source which the clerk names. NAMED: whether what he typed is its number or name. FAULT: the
-- code of the refusal, null for an admissible record.
create type source_candidate as (ID integer, LABEL text, NAMED boolean, FAULT text);
