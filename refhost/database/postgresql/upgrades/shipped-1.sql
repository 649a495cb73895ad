-- What version 1 brought, which did not say so itself: an upgrade from it learns here which objects are ours, and by the
-- digests of its functions' texts which of them somebody has replaced. Never changed again.

do $$
declare
    object record;
begin
    for object in
        -- Of two functions of one name each has one of their digests, unless it was replaced.
        select p.oid::regprocedure as name,
               coalesce(max(s.digest) filter (where s.digest = md5(p.prosrc)), max(s.digest)) as digest
        from (values
            ('as_integer', '7bcada912e053592ac953fff51f66f95'),
            ('calendar_date', 'db492310b19c91ed0e7c91fd5afc1110'),
            ('carried_price_row', '82eb74aa8c8b6059f6b12593f4c20ae1'),
            ('completed_price_row', '710ffe21c05d13a46c2dd81690d89bbb'),
            ('current_user_name', '329766796113f44eac2075648ca741c9'),
            ('date_order', '84096f20e8eb8a2d7429b5da8c86494e'),
            ('date_parts', 'e277683fd2aeb2681f7cc5def9a6ec92'),
            ('date_separator', 'dbdff8715a01a00e9a88ed1a5f4e4b5f'),
            ('date_text', '09f7b304454f726162ff74493ffcbb29'),
            ('deliveries_fault', 'c22bfdd23cac77fbafbec35cecb61794'),
            ('deliveries_since', '9a85081a69c45f41286de036b3450f42'),
            ('group_choice', '393050ee78eb94c8935a9c39f0ff5e48'),
            ('has_own_staging', 'b39b41626de1c132310585263fd45bba'),
            ('line_price', 'e4b520b2627c5ebb28ddcef9c67f71bf'),
            ('make_default_setting', '9034d6bbeb3994126160e06f6dd49f2d'),
            ('melvarkeditordodakcheckmaster', 'e7add25df2ff768d212825535de1d1b4'),
            ('melvarkeditordodakcheckzdrojdodak', 'af7ba3cee68bad037331606c4f6bbdc3'),
            ('melvarkeditordodakcheckzdrojobjednavka', '0e72c5a252f61cc46cc93fe9763b398c'),
            ('melvarkeditordodakgetpolozkybydodak', 'e1388cef5bd245db2d80088bf7e72100'),
            ('melvarkeditordodakgetpolozkybyobjednavka', '80ad074638dabf724a7388bc8f08521f'),
            ('melvarkeditordodakinit', '12b7ddb4195606964dac8458cd01eabd'),
            ('melvarkeditordodakinserttotemp', '861d0e5343512d7680811ac1a5d1e539'),
            ('melvarkeditordodakobnovdata', 'cc20e453910e2b2e51b4fc6020ad2187'),
            ('melvarkeditordodaktempuloz', 'e5747c6fe08e2ee2f4329e2f125dca9d'),
            ('melvarkeditordodakvypocetcen', '49ff5093d97970a4ae46d3adf1e6aaef'),
            ('melvarkeditordodobjcheckmaster', 'a9a0ae67c0b678ff970a30fb8b48de38'),
            ('melvarkeditordodobjcheckskupskladpol', '446ba6128032e8a269ba41ecfe886ae2'),
            ('melvarkeditordodobjcheckskupskladpol1', '7829b6fa260fc164abc1fe6ce3de2477'),
            ('melvarkeditordodobjcheckskupskladpol2', 'da6089829de4fcd46b1b9c36cd903079'),
            ('melvarkeditordodobjcheckskupskladpol3', '59d314b89879ea66ef6b5ff1ad7f03e9'),
            ('melvarkeditordodobjcheckzdrojdodak', '7e5493a4507a9afda0e42f268dd2883d'),
            ('melvarkeditordodobjcheckzdrojdodavky', '5b547b061730f3cf32cfc16516f87dbc'),
            ('melvarkeditordodobjcheckzdrojdodcenik', '1ef381b2cb0335ab93ffadfa8a105fac'),
            ('melvarkeditordodobjcheckzdrojobjednavka', '080e44f722130a44bcca9fa2978cb2cb'),
            ('melvarkeditordodobjcheckzdrojobjednavkavzor', '8652e5a32aaaa249d65d5d09232163a2'),
            ('melvarkeditordodobjgetpolozkybydodak', '1e0dd12b625b09a54f231655b6e39f0f'),
            ('melvarkeditordodobjgetpolozkybydodavky', '2ce2edca4efe42ce15547c5787bcc79c'),
            ('melvarkeditordodobjgetpolozkybydodcenik', 'f67c8dce006045b5c434b91edb2d25d6'),
            ('melvarkeditordodobjgetpolozkybyobjednavka', '743d59fae7bb0aba6b0891776752adcc'),
            ('melvarkeditordodobjgetpolozkybyskupskladpol', '7582689bd7bdb7055b6a442d9f77c9e7'),
            ('melvarkeditordodobjinit', '453f3458b7a620a8a111fa325d391f7d'),
            ('melvarkeditordodobjinserttotemp', '5076a4d3c718fb34502800a8a4f209c1'),
            ('melvarkeditordodobjobnovdata', 'c0e8414bdd984f8d26efbba2608b7442'),
            ('melvarkeditordodobjtempuloz', '1bad5293bd5768d44faa71956d355af1'),
            ('melvarkeditornastavenigetinfo', 'd4d4212ac3ca80d5031ec62335b3110a'),
            ('melvarkeditornastavenigetlist', 'bcf91ddee2d812094fa3183d335e78ae'),
            ('melvarkeditornastaveninacti', 'e4c29cbe9d974ecf0a85ea21fe411bc3'),
            ('melvarkeditornastaveninactidef', '224be36152216164cec6d0cf79e92e3c'),
            ('melvarkeditornastaveninactinastaveniokna', 'f519799b8399e928476a2b996395d543'),
            ('melvarkeditornastavenipremenuj', '78ea8f51f64970af239fbdc0dc093f88'),
            ('melvarkeditornastavenismaz', '8c36cf799b42e8d2f9159526224e3f73'),
            ('melvarkeditornastavenismazdef', 'a67503d8d08d6875de26c2a19d6e2c58'),
            ('melvarkeditornastaveniuloz', 'a0d436ea6d5cf0ccb1c701018a9a8b3c'),
            ('melvarkeditornastaveniuloznastaveniokna', '5d05d63043d3e3ac78fdd7f85c3ed356'),
            ('melvarkeditornastaveniuloznove', '3082b952acd75a2cee3740e670909e68'),
            ('melvarkeditorresettemp', '3b7873fff8193a9e4b45f18db0381b68'),
            ('moment_text', 'f2ccdc1115b311213612c6b7901e4f70'),
            ('note_fault_for_note', '516f595e83b7b847ec7b2920fe181b21'),
            ('note_fault_for_order', '7b5c7fb5041940bad8087928f9736ad1'),
            ('note_fill_prices', '9b5721946fdf470d31cd75d3041259b2'),
            ('note_line_order_line', '8406676bf4caf9994722547a4c242cd0'),
            ('note_line_rate', '8e384dc7766c6bac01be64527201afdd'),
            ('note_rows', 'a1d70615faad6a3abcdf51b30041db00'),
            ('now_moment', '3dad8d7b25912473f76ee919923c5e26'),
            ('number_text', '9413828c6d48840ef1b7d1d246cb2b94'),
            ('order_fault_for_note', '709e3a9a65f6fb4d662723582afaeebb'),
            ('order_fault_for_order', '99fc3b84dd85cd50182f370b90e4fef7'),
            ('order_moment', '7d1d4193cef2101d1ba3c5716c6ac139'),
            ('order_rows', '2cf7b1f04946d2743a635ec08d909ec1'),
            ('ordered_in_main_unit', '1b594063e4ed7f46b7464beabf12f1ad'),
            ('parse_date', '835f72b4171af3556d5fdf5efe891149'),
            ('parse_moment', 'a8cb84b9c5576c1fbc59506cdab0d8ce'),
            ('parse_number', 'd8c849f0f0dc18102829f0f593f513bd'),
            ('picked_id', 'b2a06598776325ff7a0e71ea906494c1'),
            ('price_list_fault', '4846715799caf8fb395037df4b9f90b2'),
            ('price_row_of_vat_part', '423245bcf9aaedec286d0ee135e80134'),
            ('read_moment', 'cf3571fcb8660a1e9e335db361744f67'),
            ('recalculated_line', '0a2fb3c29f5740c74058cd51a9c7a1c4'),
            ('recalculation_discount', 'cb457b00391b894f5fc1676ea9adc236'),
            ('recalculation_local_rate', '6a4db90825c4c6deee9b4aa4ec2f3f3c'),
            ('recalculation_truth', '5e63885b3caefd4849cce87754fa9bad'),
            ('recalculation_vat_rate', '92fd85ae4c4c6b9b9d4996baa283f440'),
            ('refuse', 'dcfbdb09d3d47fb952a60463211f0383'),
            ('refuse_closed_note', '136930d6255f4c8cc78e441e44e8b9d9'),
            ('refuse_closed_order', '3b181affaf351fdc191f004bb73f3de2'),
            ('refuse_closed_staging', '24776f468e49a9bd055908adce10545f'),
            ('refuse_foreign_setting', 'db75a793acb187f04a8fb3e0708ac0da'),
            ('refuse_groups', 'd864a07758e0b4fc9e4eafad0c292971'),
            ('refuse_setting_name', 'c39115afe056ea3bf1be9e6fc1cf2cfa'),
            ('refuse_unbalanced_note_line', '00df28fa2d26e4c352a3660114f9cca0'),
            ('refuse_unknown_item', '3d5029f9d357202d540920e37bd03aaa'),
            ('refuse_unknown_master_note', 'cb3a68ae5bdeee074d9be9d732e9acc0'),
            ('refuse_unknown_master_order', '10e99ad1eb7ad352a1e86f994d55a7b7'),
            ('refuse_unknown_note', 'd547482b377c09506ce75b273ed230b3'),
            ('refuse_unknown_order', '7508adf96eb2445460024b9e5a5698d0'),
            ('refuse_unknown_setting', '8d3c29963c85673c0791565f26409477'),
            ('refuse_unknown_source', '0b8f66569fa6c6af086cd42ecaecdcaa'),
            ('refuse_unknown_supplier_id', 'a976d36e0daaa44d94770d6c7f7338b8'),
            ('refuse_unknown_supplier_name', '25f8fb97ac2937b274011383f9b058ba'),
            ('refuse_unknown_warehouse', '481afe9c7d7469acbe45b9358a2afe22'),
            ('refuse_wrong_unit', 'd6f4952cd50b10498f3e8bcce87453b2'),
            ('rounded_line', 'b3ce2f4c103685be8fd0f9abf5685d63'),
            ('rounded_price_row', '3f3e6a0c00da7666c72ad893b627aa33'),
            ('rounded_quotient', '91f10b6ebb5e878edbb6ca6c3dc0b958'),
            ('shown', '91b4bfd6d77186d852ffe2779329583c'),
            ('source_choice', '07084a7cb9413ddf95c3ccf5c700432b'),
            ('total_text', '18320240f55480673254d7f84bb73924'),
            ('typed', 'e2a4ccc3cbe56852a0ad2bc175f63281'),
            ('user_row', 'f33fb8a31021b6cebe29405e32d651c9'),
            ('v_getglobalparam', '9beb4f3682d9202661a41e3f428bdc1e'),
            ('v_melvarkeditordodakcheckzdrojdodak', 'f26b214b1e2054848fc23258f2b54516'),
            ('v_melvarkeditordodakcheckzdrojobjednavka', '61811c77ff3295115bab9f0787612ad4'),
            ('v_melvarkeditordodobjcheckzdrojdodak', '42f3e738907c3b0ec4bd0111610b0d3e'),
            ('v_melvarkeditordodobjcheckzdrojdodavky', '0eaeb7531e1c1ead4f74ab196fe214d3'),
            ('v_melvarkeditordodobjcheckzdrojdodavky', '2caf16f56825329aa34fba74de4d2628'),
            ('v_melvarkeditordodobjcheckzdrojdodcenik', '45e79b1a8ad74871ad1d091b759bb3ae'),
            ('v_melvarkeditordodobjcheckzdrojobjednavkavzor', 'dac46ec2637d727581394433712227f9')
        ) s (name, digest)
        join pg_catalog.pg_proc p on p.proname = s.name and p.pronamespace = 'melvark'::regnamespace
        where p.proowner = 'melvark_owner'::regrole
        group by p.oid
    loop
        execute format('comment on function %s is %L', object.name, 'Melvark ' || object.digest);
    end loop;

    for object in
        select c.oid::regclass as name, case c.relkind when 'v' then 'view' else 'type' end as kind
        from pg_catalog.pg_class c
        where c.relnamespace = 'melvark'::regnamespace and c.relkind in ('v', 'c') and c.relname in (
            'recalc_key', 'delivery_v', 'group_v', 'item_v', 'sklad_v', 'dodavatel_v', 'dodak_normal_v',
            'dodobjednavka_normal_v', 'dodobjednavkavzor_normal_v', 'dodavatel_normal_v', 'skupspol_skupspol1_v',
            'skupspol_skupspol2_v', 'skupspol_skupspol3_v', 'price_v', 'screen_dodak_v', 'screen_dodobj_v',
            'screen_dodobjvzor_v', 'screen_dodak_lines_v', 'order_lines_v', 'screen_dodobj_lines_v',
            'screen_dodobjvzor_lines_v',
            'note_fill', 'note_row', 'order_quantity', 'order_fill', 'order_row', 'price_row', 'line_prices',
            'source_candidate')
    loop
        execute format('comment on %s %s is %L', object.kind, object.name, 'Melvark');
    end loop;
end
$$;
