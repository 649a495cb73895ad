-- Ends the call with a refusal of the table, its places filled with what the sentence names. A null is shown as NULL.
-- Volatile, so that it is called for the rows which are reached and for no other.
create function refuse(refusal text, variadic named text[] default '{}') returns void
language plpgsql volatile as $$
begin
    raise exception using
        errcode = left(refusal, 5),
        message = format(
            regexp_replace(replace(refusal_sentence(refusal), '%', '%%'), '\{([1-9])\}', '%\1$s', 'g'),
            variadic array(select shown(coalesce(n.THING, 'NULL'))
                           from unnest(named) with ordinality n (THING, PLACE)
                           order by n.PLACE));
end
$$;
