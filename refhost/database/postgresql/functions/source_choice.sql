-- A source that the clerk names while his choice is checked.

-- The identifier of the one admissible candidate, or a refusal: ML020 nothing is given, ML021 no such record, ML022 the
-- text is not that of the picked record, ML023 several would do, else the record's own fault. Of records that differ in the
-- case of letters only, those written just as the clerk wrote are meant. `entry` is his text, null for none; `picked` the
-- record that he picked, null for none; `day` the day whose price lists count, where they do.
create function source_choice(kind text, entry text, picked integer, day date, candidates source_candidate[])
returns integer
language plpgsql stable as $$
declare
    verbatim constant source_candidate[] := array(
        select c from unnest(candidates) c where c.LABEL = entry collate "C");
    meant constant source_candidate[] := case cardinality(verbatim) when 0 then candidates else verbatim end;
    admissible constant integer[] := array(select c.ID from unnest(meant) c where c.FAULT is null);
    first source_candidate;
begin
    select c.* into first from unnest(meant) c order by c.ID limit 1;
    if picked is null and entry is null then
        perform refuse('ML020');
    elsif first.ID is null then
        perform refuse('ML021', kind, coalesce(entry, picked::text));
    elsif picked is not null and entry is not null and not first.NAMED then
        perform refuse('ML022', entry, first.LABEL);
    elsif cardinality(admissible) = 0 then
        -- What a fault's sentence has no place for is not shown.
        perform refuse(first.FAULT, kind, first.LABEL, date_text(day));
    elsif cardinality(admissible) > 1 then
        perform refuse('ML023', entry);
    end if;
    return admissible[1];
end
$$;

-- An identifier as the clerk's choice: null, 0 and negative ones are none.
create function picked_id(id integer) returns integer
language sql immutable as $$
    select case when id > 0 then id end
$$;

-- Refuses a document that is given and does not exist: ML010 a delivery note, ML012 an order or template.
create function refuse_unknown_master_note(id integer) returns void
language sql as $$
    select refuse_unknown_note(refuse_unknown_master_note.id) where refuse_unknown_master_note.id > 0
$$;

create function refuse_unknown_master_order(id integer) returns void
language sql as $$
    select refuse_unknown_order(refuse_unknown_master_order.id) where refuse_unknown_master_order.id > 0
$$;
