-- A source that the clerk names while his choice is checked.

-- The identifier of the one admissible candidate, or a refusal: ML020 nothing is given, ML021 no such record, ML022 the
-- text is not that of the picked record, ML023 several would do, else the record's own fault. `entry` is the clerk's text,
-- null for none; `picked` the record that he picked, null for none; `day` the day whose price lists count, where they do.
create function source_choice(kind text, entry text, picked integer, day date, candidates source_candidate[])
returns integer
language plpgsql stable as $$
declare
    first source_candidate;
    admissible constant integer[] := array(select c.ID from unnest(candidates) c where c.FAULT is null);
begin
    select c.* into first from unnest(candidates) c order by c.ID limit 1;
    if picked is null and entry is null then
        perform refuse('ML020', 'Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.');
    elsif first.ID is null then
        perform refuse('ML021', kind || ' „' || shown(coalesce(entry, picked::text))
                                    || '“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.');
    elsif picked is not null and entry is not null and not first.NAMED then
        perform refuse('ML022', 'Zapsáno je „' || shown(entry) || '“, ale vybráno bylo „' || shown(first.LABEL)
                                    || '“. Vyberte ze seznamu znovu.');
    elsif cardinality(admissible) = 0 then
        perform refuse(first.FAULT, kind || ' „' || shown(first.LABEL) || '“ ' || case first.FAULT
            when 'ML024' then 'patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.'
            when 'ML025' then 'patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.'
            when 'ML026' then 'má už všechny položky dodané. Vyberte objednávku, na které něco zbývá.'
            when 'ML027' then 'je právě upravovaný doklad. Vyberte jako zdroj jiný.'
            when 'ML028' then 'nemá k datu ' || date_text(day) || ' žádný platný ceník. Vyberte jiného dodavatele.'
            when 'ML029' then 'v posledních měsících nic nedodal. Vyberte jiného dodavatele.'
        end);
    elsif cardinality(admissible) > 1 then
        perform refuse('ML023', 'Označení „' || shown(entry) || '“ má více záznamů. Vyberte ten správný ze seznamu.');
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
