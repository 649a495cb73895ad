-- Numbers and dates as texts for people, in the formats of the session: the settings melvark.decimal_separator,
-- melvark.date_separator and melvark.date_order (DMY, MDY or YMD), which a connection makes at its start; without them
-- ISO with a point. Null gives null.

create function decimal_separator() returns text
language sql stable as $$
    select coalesce(nullif(current_setting('melvark.decimal_separator', true), ''), '.')
$$;

-- Without needless zeros. Whoever writes many numbers asks for the separator once.
create function written_number(value numeric, separator text) returns text
language sql immutable as $$
    select replace(trim_scale(value)::text, '.', separator)
$$;

create function number_text(value numeric) returns text
language sql stable
return written_number(value, decimal_separator());

-- With two decimals.
create function written_total(value numeric, separator text) returns text
language sql immutable as $$
    select replace(round(value, 2)::text, '.', separator)
$$;

create function total_text(value numeric) returns text
language sql stable
return written_total(value, decimal_separator());

-- One expression without a subquery, like its neighbours: the planner then puts it into the query that asks for it.
create function date_text(day date) returns text
language sql stable as $$
    select replace(
        to_char(day, case coalesce(nullif(current_setting('melvark.date_order', true), ''), 'YMD')
            when 'DMY' then 'FMDD.FMMM.YYYY'
            when 'MDY' then 'FMMM.FMDD.YYYY'
            else 'YYYY.FMMM.FMDD'
        end),
        '.', coalesce(nullif(current_setting('melvark.date_separator', true), ''), '-'))
$$;

create function moment_text(moment timestamp) returns text
language sql stable
return date_text(moment::date) || to_char(moment, ' HH24:MI:SS');

-- A text as sentences show it.
create function shown(value text) returns text
language sql immutable as $$
    select case when char_length(value) > 60 then left(value, 60) || '…' else value end
$$;
