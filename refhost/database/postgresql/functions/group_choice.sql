-- The identifier of the one stock group of a level that the clerk names, null for an empty level, or a refusal: ML030 there
-- is none, ML031 several have the name, ML032 the text is not the name of the picked one. `entry` is his text, in any case
-- of letters, null for none; `picked` the group that he picked, null for none.
create function group_choice(group_level integer, entry text, picked integer) returns integer
language plpgsql stable as $$
declare
    named constant integer[] := array(select g.ID from GROUP_V g
                                      where g.LEVEL = group_level and lower(g.NAZEV) = lower(entry collate CZECH));
    picked_name constant text := (select g.NAZEV from GROUP_V g where g.LEVEL = group_level and g.ID = picked);
begin
    if (picked is not null and picked_name is null)
       or (picked is null and entry is not null and cardinality(named) = 0) then
        perform refuse('ML030', group_level::text, coalesce(entry, picked::text));
    elsif picked is not null and entry is not null and picked <> all (named) then
        perform refuse('ML032', entry, picked_name);
    elsif picked is null and cardinality(named) > 1 then
        perform refuse('ML031', entry, group_level::text);
    end if;
    return coalesce(picked, named[1]);
end
$$;
