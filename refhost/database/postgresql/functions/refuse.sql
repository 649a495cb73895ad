-- The sentence of a refusal of the table, its places filled with what it names. A null is shown as NULL.
create function refusal_text(refusal text, named text[]) returns text
language plpgsql as $$
begin
    return format(
        regexp_replace(replace(refusal_sentence(refusal), '%', '%%'), '\{([1-9])\}', '%\1$s', 'g'),
        variadic array(select shown(coalesce(n.THING, 'NULL'))
                       from unnest(named) with ordinality n (THING, PLACE)
                       order by n.PLACE));
end
$$;

-- Ends the call with a refusal of the table.
-- Volatile, so that it is called for the rows which are reached and for no other.
create function refuse(refusal text, variadic named text[] default '{}') returns void
language plpgsql volatile as $$
begin
    raise exception using errcode = left(refusal, 5), message = refusal_text(refusal, named);
end
$$;

-- Likewise with one that is about a row of the save, counted from 0 in the order in which the rows were sent. The host
-- reads the row from the detail.
create function refuse_line(place integer, refusal text, variadic named text[] default '{}') returns void
language plpgsql volatile as $$
begin
    raise exception using
        errcode = left(refusal, 5), message = refusal_text(refusal, named), detail = format('row %s', place);
end
$$;
