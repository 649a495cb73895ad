-- Ends the call with a refusal: a code of ours and a sentence for the person who called. Volatile, so that it is called
-- for the rows which are reached and for no other.
create function refuse(code text, sentence text) returns void
language plpgsql volatile as $$
begin
    raise exception using errcode = code, message = sentence;
end
$$;
